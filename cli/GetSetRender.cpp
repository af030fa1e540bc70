#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include "cli/Commands.h"
#include "cli/OpenForm.h"
#include "cli/PictureOptions.h"
#include "cli/Suggest.h"
#include "forms/FormFile.h"
#include "forms/KeptValues.h"
#include "forms/TextWriter.h"
#include "ide/BoundsCheck.h"
#include "ide/RefusedData.h"
#include "ide/StandIns.h"
#include "ide/Tiles.h"
#include "rtl/Exceptions.h"
#include "rtl/Printable.h"

using namespace forms;

std::unique_ptr<FormSession> OpenForm(const QString& file) {
  try {
    return FormSession::Open(file);
  } catch (const EFormError& e) {
    throw Exception(QStringLiteral("%1: %2").arg(file, e.Message()));
  }
}

TComponent& ComponentOf(FormSession& session, const QString& text, QByteArray& path) {
  const QStringList names = text.split(u'.');
  const QString name = names[0].trimmed();
  if (TComponent* c = session.GetComponent(name)) {
    qsizetype used = 1;
    for (; used < names.size(); ++used) {
      TComponent* inner = c == session.GetRoot() ? nullptr : c->FindComponent(names[used].trimmed());
      if (!inner) break;
      c = inner;
    }
    path = names.mid(used).join(u'.').trimmed().toUtf8();
    return *c;
  }
  QStringList known;
  for (const TComponent* c : session.AllComponents()) known << c->Name();
  throw Exception(QStringLiteral("%1 has no component named \"%2\".").arg(session.FileName(), name) +
                  DidYouMean(name, known));
}

namespace {
// Also what the file says of it and no class knows.
[[noreturn]] void ThrowNoProperty(const FormSession& session, TComponent& component, const QByteArray& path) {
  QStringList known;
  for (const StoredValue& v : PropertyValues(component, session.Document(), true)) {
    known << QString::fromUtf8(v.path);
    if (const qsizetype dot = v.path.indexOf('.'); dot > 0) known << QString::fromUtf8(v.path.first(dot));
  }
  for (const Property& p : session.ObjectOf(component)->properties) known << QString::fromUtf8(p.Name());
  throw Exception(QStringLiteral("%1: %2 (%3) has no property \"%4\".")
                      .arg(session.FileName(), component.Name(),
                           QString::fromUtf8(component.StreamClassName()), QString::fromUtf8(path)) +
                  DidYouMean(QString::fromUtf8(path), known));
}
}  // namespace

void WriteForm(FormSession& session, const QString& file) {
  if (SameFile(file, session.FileName()))
    session.Save();  // refuses when the file has changed since it was read
  else
    WriteFile(file, session.Bytes());
}

namespace {
// For what shows values: a form whose pictures were refused is not what it seems.
std::unique_ptr<FormSession> OpenWholeForm(const QString& file) {
  auto session = OpenForm(file);
  RequireAllData(*session);
  return session;
}

// A value of a stranger's form as form text that is harmless on a terminal: what would act there is written
// as #n in strings, and names, which are anything in a stream, are escaped.
Value Harmless(Value v, const Document& document) {
  if (v.IsString()) {
    const QString text = document.Decode(v);
    if (std::any_of(text.begin(), text.end(), IsControl)) {
      v.type = ValueType::WString;
      v.wide = text;
    }
  } else if (v.type == ValueType::Ident) {
    v.bytes = Printable(QString::fromUtf8(v.bytes)).toUtf8();
  }
  for (QByteArray& element : v.elements) element = Printable(QString::fromUtf8(element)).toUtf8();
  for (Value& item : v.items) item = Harmless(std::move(item), document);
  for (CollectionItem& item : v.collection)
    for (NamedValue& p : item.properties) {
      p.path = Printable(QString::fromUtf8(p.path)).toUtf8();
      p.value = Harmless(std::move(p.value), document);
    }
  return v;
}

QString ShownValue(const Value& value, const Document& document) {
  QByteArray text = ValueToText(Harmless(value, document), document.Style());
  // The one control character that form text keeps within its quotes.
  text.replace('\x7F', "'#127'");
  return QString::fromUtf8(text);
}

// Which kind of picture the name asks for.
QByteArray PictureFormat(const QString& fileName) {
  const QString suffix = fileName == QStringLiteral("-") ? QString() : QFileInfo(fileName).suffix().toLower();
  if (suffix.isEmpty()) return "png";
  static const QByteArrayList wanted{"png", "jpg", "jpeg", "bmp", "webp"};
  QStringList possible;
  for (const QByteArray& format : wanted)
    if (QImageWriter::supportedImageFormats().contains(format))
      possible << u'.' + QString::fromLatin1(format);
  if (!possible.contains(u'.' + suffix))
    throw UsageError{QStringLiteral("-o %1: pictures are written as %2")
                         .arg(fileName, possible.join(QStringLiteral(", ")))};
  return suffix.toLatin1();
}
}  // namespace

int GetCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {}, {});
  if (args.values.size() != 2)
    throw UsageError{QStringLiteral("FORM and COMPONENT or COMPONENT.PROPERTY are needed")};
  LoadClasses(console);
  const auto session = OpenWholeForm(args.values[0]);
  QByteArray path;
  TComponent& component = ComponentOf(*session, args.values[1], path);
  const Document& document = session->Document();
  const Object& object = *session->ObjectOf(component);
  const auto below = [&](QByteArrayView property) {
    return path.isEmpty() || (property.size() > path.size() && property[path.size()] == '.' &&
                              property.first(path.size()).compare(path, Qt::CaseInsensitive) == 0);
  };
  if (const Property* p = path.isEmpty() ? nullptr : object.Find(path)) {
    console.out << ShownValue(document.Read(*p), document) << Qt::endl;
    return ExitOk;
  }
  // Whatever the file says, then what the component adds: the value of a property that is at its default.
  bool found = false;
  for (const Property& p : object.properties)
    if (below(p.Name())) {
      console.out << Printable(QString::fromUtf8(p.Name())) << " = " << ShownValue(document.Read(p), document)
                  << '\n';
      found = true;
    }
  // Of one that is inherited, also what its ancestors say, each only where none below it does.
  if (path.isEmpty())
    for (const Object* at = &object; at->origin; at = at->origin->object)
      for (const Property& p : at->origin->object->properties) {
        const Object* said = &object;
        while (said != at->origin->object && !said->Find(p.Name())) said = said->origin->object;
        if (said == at->origin->object)
          console.out << Printable(QString::fromUtf8(p.Name())) << " = "
                      << ShownValue(at->origin->document->Read(p), *at->origin->document) << '\n';
      }
  if (!path.isEmpty())
    for (const StoredValue& v : PropertyValues(component, document, true)) {
      if (v.path.compare(path, Qt::CaseInsensitive) == 0) {
        console.out << ShownValue(v.value, document) << '\n';
        found = true;
      } else if (below(v.path) && !object.Find(v.path)) {
        console.out << QString::fromUtf8(v.path) << " = " << ShownValue(v.value, document) << '\n';
        found = true;
      }
    }
  console.out.flush();
  if (!found && !path.isEmpty()) ThrowNoProperty(*session, component, path);
  return ExitOk;
}

int SetCommand(const QStringList& list, Console& console) {
  const Arguments args = ParseArguments(list, {QStringLiteral("-o")}, {});
  if (args.values.size() < 2)
    throw UsageError{QStringLiteral("FORM and COMPONENT.PROPERTY=VALUE are needed")};
  LoadClasses(console);
  const auto session = OpenForm(args.values[0]);
  struct Assignment {
    TComponent* component;
    QString text;
    QByteArray path;
    Value value;
    QString formText;
  };
  std::vector<Assignment> assignments;
  std::vector<TComponent*> touched;
  for (const QString& text : args.values.mid(1)) {
    const qsizetype equals = text.indexOf(u'=');
    const qsizetype dot = text.indexOf(u'.');
    if (equals < 0 || dot < 0 || dot > equals)
      throw UsageError{QStringLiteral("\"%1\" is not COMPONENT.PROPERTY=VALUE").arg(text)};
    QByteArray path;
    TComponent& component = ComponentOf(*session, text.left(equals), path);
    try {
      assignments.push_back({&component, text, path, TextToValue(text.mid(equals + 1).trimmed().toUtf8()),
                             text.mid(equals + 1).trimmed()});
    } catch (const EFormError& e) {
      throw Exception(QStringLiteral("%1: the value is not form text: %2. Strings are written as '...'.")
                          .arg(text, e.Text()));
    }
    touched.push_back(&component);
  }
  session->Run(QStringLiteral("set"), touched, [&] {
    for (const Assignment& a : assignments) {
      const PropertyTarget target = FindTarget(*a.component, a.path);
      const bool root = a.component == session->GetRoot();
      // What no class knows is there all the same when the form says it.
      if (!target.Found() && session->ObjectOf(*a.component)->Find(a.path)) {
        session->SetStored(*a.component, a.path, a.formText);
        continue;
      }
      if (!target.Found() || (root && !RootHasProperty(session->Form().Kind(), a.path.split('.')[0])))
        ThrowNoProperty(*session, *a.component, a.path);
      try {
        ApplyNow(session->Form(), target, a.value, session->Document());
        if (const auto unread = UnreadValues(target); !unread.empty()) {
          if (unread[0].refused) std::rethrow_exception(unread[0].refused);
          throw Exception(QStringLiteral("there is no property %1").arg(QString::fromUtf8(unread[0].path)));
        }
        if (target.prop && a.value.IsInteger())
          RequireBoundsTaken(*target.instance, *target.prop, a.value.integer);
      } catch (const Exception& e) {
        throw Exception(QStringLiteral("%1: %2").arg(a.text, e.Message()));
      }
    }
  });
  WriteForm(*session, args.options.value(QStringLiteral("-o"), args.values[0]));
  return ExitOk;
}

int RenderCommand(const QStringList& list, Console& console) {
  const Arguments args =
      ParseArguments(list, {QStringLiteral("-o"), QStringLiteral("--scale"), QStringLiteral("--theme")}, {});
  if (args.values.size() != 1 || !args.Has(QStringLiteral("-o")))
    throw UsageError{QStringLiteral("FORM and -o PICTURE are needed")};
  const double scale = ScaleOption(args);
  const QByteArray format = PictureFormat(args.options.value(QStringLiteral("-o")));
  const FormColorScope colors(ThemeOption(args));
  LoadClasses(console);
  const auto session = OpenWholeForm(args.values[0]);
  constexpr double MaxPixels = 200e6;
  const QSize size = DeskSize(*session).expandedTo(session->Form().BoundsRect().size());
  if (size.width() * scale * size.height() * scale > MaxPixels)
    throw Exception(
        QStringLiteral("%1: the picture would have more than 200 million pixels; use a smaller --scale")
            .arg(args.values[0]));
  const QString file = args.options.value(QStringLiteral("-o"));
  QImage picture = RenderRoot(*session, scale);
  // Other kinds keep no transparency; what is not the form is white then.
  if (format != "png" && picture.hasAlphaChannel()) {
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.setDevicePixelRatio(picture.devicePixelRatio());
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(QPoint(), picture);
    picture = opaque;
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setQuality(format == "png" || format == "bmp" ? -1 : 95);
  if (!writer.write(picture))
    throw Exception(QStringLiteral("The picture could not be made: %1").arg(writer.errorString()));
  WriteFile(file, bytes);
  return ExitOk;
}
