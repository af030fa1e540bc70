#include "cli/Commands.h"

#include "dclstd/StandardEditors.h"
#include "ide/PackageManager.h"
#include "rtl/Exceptions.h"

const std::vector<CommandRow>& CommandTable() {
  static const std::vector<CommandRow> table{
      {"check", "FILE... [--strict]",
       "Reads forms and lists what is wrong with them, one line per finding:\n"
       "FILE:LINE:COL: error|warning|note: TEXT. Unknown classes and properties are\n"
       "notes, with --strict errors. Exit code 1 with errors or warnings.",
       CheckCommand},
      {"convert", "IN OUT [--to text|binary|resource]",
       "Converts between form text, a bare TPF0 stream and a stream wrapped as a\n"
       "resource. Without --to, text becomes a resource and the others become text.\n"
       "\"-\" is standard input or output. A form that is in the wanted form already\n"
       "comes out byte for byte.",
       ConvertCommand},
      {"render", "FORM -o PNG [--scale F] [--theme light|dark]", "Draws a form as a picture.", RenderCommand},
      {"get", "FORM COMPONENT[.PROPERTY]", "Prints a property, or all of a component, as form text.",
       GetCommand},
      {"set", "FORM COMPONENT.PROPERTY=VALUE... [-o OUT]",
       "Changes properties; values are written as in form text ('a string', clRed,\n"
       "[a, b], 12). A refused value says why, and nothing is written.",
       SetCommand},
      {"package", "[--json]", "Prints the description record of the design-time package.", PackageCommand},
      {"registrations", "[--labeled] [--json]",
       "Lists every registration call of the package in order. --labeled switches the\n"
       "labeled variants on.",
       RegistrationsCommand},
      {"effect3d",
       "SOURCE --up PNG --down PNG --disabled PNG [--transparent C] [--light C] [--shadow C] [--dither C] "
       "[--bevel C] [--width N] [--semi KEY,SECOND]",
       "Makes the pictures of a three-dimensional button. C is a colour: clRed, $00BBGGRR\n"
       "or #rrggbb. Without --transparent it is the colour of the lower left pixel; the\n"
       "bevel is 2 wide. --semi makes pixels of the colour KEY half transparent.\n"
       "With --out-dir DIR instead of the three files it takes many sources, on all cores,\n"
       "and writes NAME-up.png, NAME-down.png and NAME-disabled.png.",
       Effect3DCommand},
      {"region",
       "SOURCE --transparent C[,C...] [--border STYLE | --button LOOK --first PNG --second PNG] [--region "
       "FILE] "
       "[--picture PNG] [--json]",
       "Makes the region of a shaped window or button: what is of none of the colours.\n"
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

void LoadClasses(Console& console, bool labeled) {
  static PackageManager* packages = nullptr;
  if (packages) return;
  if (labeled) qputenv("ORLENVOKITEDITOROPTIONS", "1");
  RegisterStandard();
  packages = new PackageManager(PackageManager::DefaultFolders());  // for the life of the process
  try {
    packages->Load(PackageManager::DefaultPackage());
  } catch (const std::exception& e) {
    console.err << "vrx: " << ExceptionMessage(e) << Qt::endl;
  }
}

namespace {
void PrintHelp(QTextStream& out) {
  out << "vrx - works on form files without a display\n\nUsage: vrx COMMAND ARGUMENTS\n       vrx --help | "
         "--version\n";
  for (const CommandRow& row : CommandTable()) {
    out << "\n  vrx " << row.name << ' ' << row.arguments << '\n';
    for (const QString& line : QString::fromLatin1(row.help).split(u'\n')) out << "      " << line << '\n';
  }
  out.flush();
}
}  // namespace

int RunVrx(const QStringList& arguments, Console& console) {
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
    if (arguments.contains(QStringLiteral("--help"))) {
      console.out << "Usage: vrx " << row.name << ' ' << row.arguments << "\n\n" << row.help << Qt::endl;
      return ExitOk;
    }
    try {
      return row.run(arguments.mid(1), console);
    } catch (const UsageError& e) {
      console.err << "vrx " << row.name << ": " << e.text << "\nUsage: vrx " << row.name << ' '
                  << row.arguments << Qt::endl;
      return ExitUsage;
    } catch (const std::exception& e) {
      console.err << "vrx " << row.name << ": " << ExceptionMessage(e) << Qt::endl;
      return ExitFindings;
    }
  }
  if (first.isEmpty())
    console.err << "vrx: a command is missing; vrx --help lists them" << Qt::endl;
  else
    console.err << "vrx: unknown command \"" << first << "\"; vrx --help lists the commands" << Qt::endl;
  return ExitUsage;
}
