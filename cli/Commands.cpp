#include "cli/Commands.h"

#include "dclstd/StandardEditors.h"
#include "designintf/EditorOptions.h"
#include "designintf/PackageCall.h"
#include "ide/PackageManager.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"

const std::vector<CommandRow>& CommandTable() {
  static const std::vector<CommandRow> table{
      {"check", "FILE... [--strict]",
       "Reads forms and lists what is wrong with them, one line per finding:\n"
       "FILE:LINE:COL: error|warning|note: TEXT. Unknown classes and properties, and\n"
       "names of values that only another framework knows, are notes, with --strict\n"
       "errors. Exit code 1 with errors or warnings.",
       CheckCommand},
      {"convert", "IN OUT [--to text|binary|resource] [--eol lf|crlf]",
       "Converts between form text, a bare TPF0 stream and a stream wrapped as a\n"
       "resource. Without --to, text becomes a resource and the others become text.\n"
       "\"-\" is standard input or output. A form that is in the wanted form already\n"
       "comes out byte for byte. --eol ends the lines of text; without it new text has\n"
       "the line ends of the file it replaces, or of the forms beside it, else CRLF in\n"
       "a .dfm and LF elsewhere.",
       ConvertCommand},
      {"render", "FORM -o PICTURE [--scale F] [--theme light|dark]",
       "Draws a form as a picture. The name says which kind: .png, .jpg, .bmp or what\n"
       "else can be written here; without a suffix, and on standard output, it is PNG.",
       RenderCommand},
      {"get", "FORM COMPONENT[.PROPERTY]", "Prints a property, or all of a component, as form text.",
       GetCommand},
      {"set", "FORM COMPONENT.PROPERTY=VALUE... [-o OUT]",
       "Changes properties; values are written as in form text ('a string', clRed,\n"
       "[a, b], 12). A refused value says why, and nothing is written.",
       SetCommand},
      {"edit", "FORM COMPONENT.PROPERTY [-o OUT]",
       "Opens the editor of one property, as the designer's inspector does, and writes the\n"
       "form when it is confirmed. Exit code 3 when it is cancelled; nothing is written then.",
       EditCommand},
      {"do", "FORM ACTION... [--select NAME[,NAME...]] [--clipboard FILE] [-o OUT]",
       "Does what the designer's menus do, one action after the other, to the components\n"
       "named; the first one is the measure of alignments and sizes. What cannot be done\n"
       "says why, and nothing is written. The clipboard is a file: paste reads it, copy and\n"
       "cut write it; without --clipboard it is standard input and output.",
       DoCommand},
      {"style",
       "list|export|import|apply FORM... [--manager NAME] [--style PATH] [--class CLASS] [--from FILE] [-o "
       "FILE] "
       "[--dry-run]",
       "Works on the styles that style managers of forms hold. list prints their paths, with\n"
       "--style what one says; export writes them to the style file -o; import puts those of\n"
       "the style file --from into forms; apply gives the style --style to all components of\n"
       "the class --class, or of the last class in its path, from the style file --from or\n"
       "from the form's own manager. import and apply work on all cores and replace each\n"
       "form as a whole; --dry-run prints the lines that would change instead. What does not\n"
       "fit a component is told, the rest is set, and the exit code is 1.",
       StyleCommand},
      {"actions", "[--json]", "Lists the actions and what they do.", ActionsCommand},
      {"package", "[PACKAGE] [--json]",
       "Prints the description record of a package, without running its code. PACKAGE is\n"
       "a name or a file; without it, the library's design-time package.",
       PackageCommand},
      {"registrations", "[PACKAGE] [--labeled] [--json]",
       "Lists every registration call of a package in order, unit by unit. PACKAGE is a\n"
       "name or a file; without it, the library's design-time package. --labeled\n"
       "switches the labeled variants on. Exit code 1 when nothing is registered.",
       RegistrationsCommand},
      {"describe", "[CLASS[.PROPERTY]] [--json] | --page | --dialogs [PACKAGE] [--json]",
       "Describes what a class publishes: its purpose, ancestors, palette page, editor, the verbs\n"
       "of a new component, properties and events; without CLASS it lists all classes. A\n"
       "PROPERTY may be one of a part (LED.Thickness). With --json without CLASS: an array of\n"
       "everything. --page prints the documentation of all components as Markdown.\n"
       "--dialogs describes the dialogs of a package: every control with its texts, hint,\n"
       "entries, limits and place in the tab order. PACKAGE is a name or a file; without it,\n"
       "the library's design-time package. Exit code 1 when it has no dialogs, or one that\n"
       "cannot be opened.",
       DescribeCommand},
      {"gallery", "-o DIR [--theme light|dark] [--scale F]",
       "Draws a picture of every component on the palette and of every other visible one,\n"
       "CLASS.png, and a sheet of them all, gallery.png.",
       GalleryCommand},
      {"effect3d",
       "SOURCE --up PNG --down PNG --disabled PNG [--transparent C] [--light C] [--shadow C] [--dither C] "
       "[--bevel C] [--width N] [--semi KEY,SECOND]",
       "Makes the pictures of a three-dimensional button. C is a color: clRed, $00BBGGRR\n"
       "or #rrggbb. Without --transparent it is the color of the lower left pixel; the\n"
       "bevel is 2 wide. --semi makes pixels of the color KEY half transparent.\n"
       "With --out-dir DIR instead of the three files it takes many sources, on all cores,\n"
       "and writes NAME-up.png, NAME-down.png and NAME-disabled.png.",
       Effect3DCommand},
      {"region",
       "SOURCE --transparent C[,C...] [--border STYLE | --button LOOK --first PNG --second PNG] [--region "
       "FILE] "
       "[--picture PNG] [--json]",
       "Makes the region of a shaped window or button: what is of none of the colors.\n"
       "STYLE: none, single, raised, lowered, single-raised, single-lowered; LOOK: win31,\n"
       "win40, simple. --transparent may be given several times. --region writes region\n"
       "data, --picture the picture with its border; --json prints bounds, count and\n"
       "rectangles as [left, top, right, bottom].\n"
       "With --out-dir DIR it takes many sources, on all cores, and writes NAME-region.rgn,\n"
       "NAME-border.png and, for buttons, NAME-first.png and NAME-second.png.",
       RegionCommand},
  };
  return table;
}

Arguments ParseArguments(const QStringList& list, const QStringList& withValue, const QStringList& flags) {
  Arguments result;
  bool onlyValues = false;
  for (int i = 0; i < list.size(); ++i) {
    QString word = list[i];
    if (onlyValues || word == QStringLiteral("-") || !word.startsWith(u'-')) {
      result.values << word;
      continue;
    }
    if (word == QStringLiteral("--")) {
      onlyValues = true;
      continue;
    }
    QString value;
    const qsizetype equals = word.startsWith(QStringLiteral("--")) ? word.indexOf(u'=') : -1;
    if (equals > 0) {
      value = word.mid(equals + 1);
      word.truncate(equals);
    }
    if (flags.contains(word) && equals < 0) {
      result.options.insert(word, QString());
    } else if (withValue.contains(word)) {
      if (equals < 0) {
        if (++i == list.size()) throw UsageError{QStringLiteral("%1 needs a value").arg(word)};
        value = list[i];
      }
      result.options.insert(word, value);
    } else {
      throw UsageError{QStringLiteral("unknown option %1").arg(list[i])};
    }
  }
  return result;
}

void Console::Tell(const QString& message) const { err << Printable(message) << Qt::endl; }

DesignRegistry& Host() {
  static auto& registry = *new DesignRegistry;  // for the life of the process
  return registry;
}

QString LoadClasses(Console& console, bool labeled, const QString& package) {
  static PackageManager* packages = nullptr;
  static unsigned char registered = 0;  // the options that the loaded packages have registered by
  const QString wanted = package.isEmpty() ? PackageManager::DefaultPackage() : package;
  static const bool always = EditorOption(TEditorOption::LabeledVariants);  // the environment says so
  SetEditorOption(TEditorOption::LabeledVariants, labeled || always);
  if (!packages) {
    RegisterStandard(Host());
    packages = new PackageManager(PackageManager::DefaultFolders(), Host());  // as long
    SetPackageProblemListener(
        [&console](const QString& message) { console.Tell(QStringLiteral("vrx: ") + message); });
  }
  try {
    const QString name = packages->ReadRecord(wanted).Name;
    if (std::exchange(registered, EditorOptions()) != EditorOptions()) packages->LoadAgain();
    if (packages->IsLoaded(name)) return name;
    packages->Load(wanted);
    for (const QString& warning : packages->Warnings())
      console.Tell(QStringLiteral("vrx: warning: ") + warning);
    return name;
  } catch (const std::exception& e) {
    console.Tell(QStringLiteral("vrx: ") + ExceptionMessage(e));
  }
  return {};
}

namespace {
constexpr int Columns = 100;

// What a command takes, broken between its arguments; the lines after the first are indented.
QString Synopsis(const CommandRow& row, const QString& lead) {
  const QString text = QString::fromLatin1(row.arguments);
  QStringList pieces;
  int depth = 0;
  qsizetype from = 0;
  for (qsizetype i = 0; i <= text.size(); ++i) {
    const QChar c = i < text.size() ? text[i] : QChar(u' ');
    if (c == u'[') ++depth;
    if (c == u']') --depth;
    // A value stays behind its option.
    if (c != u' ' || depth > 0) continue;
    if (text[from] != u'-' && text[from] != u'[' && !pieces.isEmpty() && !pieces.last().contains(u' ') &&
        pieces.last().startsWith(QStringLiteral("--")))
      pieces.last() += u' ' + text.mid(from, i - from);
    else
      pieces << text.mid(from, i - from);
    from = i + 1;
  }
  QString result, line = lead + QStringLiteral("vrx ") + QString::fromLatin1(row.name);
  const QString indent(lead.size() + 8, u' ');
  for (const QString& piece : pieces) {
    if (line.size() + 1 + piece.size() > Columns) {
      result += line + u'\n';
      line = indent + piece;
    } else {
      line += u' ' + piece;
    }
  }
  return result + line;
}

QString Usage(const CommandRow& row) { return Synopsis(row, QStringLiteral("Usage: ")); }

void PrintHelp(QTextStream& out) {
  out << "vrx - works on form files without a display\n\nUsage: vrx COMMAND ARGUMENTS\n       vrx --help | "
         "--version\n";
  for (const CommandRow& row : CommandTable()) {
    out << '\n' << Synopsis(row, QStringLiteral("  ")) << '\n';
    for (const QString& line : QString::fromLatin1(row.help).split(u'\n')) out << "      " << line << '\n';
  }
  out.flush();
}
}  // namespace

int RunVrx(const QStringList& arguments, Console& console) {
  Host();
  const QString first = arguments.value(0);
  if (first == QStringLiteral("--help") || first == QStringLiteral("-h") || first == QStringLiteral("help")) {
    PrintHelp(console.out);
    return ExitOk;
  }
  if (first == QStringLiteral("--version")) {
    console.out << "vrx " << VRX_VERSION << Qt::endl;
    return ExitOk;
  }
  for (const CommandRow& row : CommandTable()) {
    if (first != QLatin1StringView(row.name)) continue;
    // Behind "--" stand names only, whatever they look like.
    if (arguments.mid(0, arguments.indexOf(QStringLiteral("--"))).contains(QStringLiteral("--help"))) {
      console.out << Usage(row) << "\n\n" << row.help << Qt::endl;
      return ExitOk;
    }
    try {
      return row.run(arguments.mid(1), console);
    } catch (const UsageError& e) {
      console.Tell(QStringLiteral("vrx %1: %2").arg(QString::fromLatin1(row.name), e.text));
      console.err << Usage(row) << Qt::endl;
      return ExitUsage;
    } catch (...) {
      console.Tell(
          QStringLiteral("vrx %1: %2").arg(QString::fromLatin1(row.name), CurrentExceptionMessage()));
      return ExitFindings;
    }
  }
  if (first.isEmpty())
    console.err << "vrx: a command is missing; vrx --help lists them" << Qt::endl;
  else
    console.Tell(QStringLiteral("vrx: unknown command \"%1\"; vrx --help lists the commands").arg(first));
  return ExitUsage;
}
