// Files of face controllers. The first line says what it is and in which version; then a block for each
// setting object and each state, whose lines are indented; the last line is "end", so that a piece of a file
// is not taken for the whole. Blocks and lines that nobody here knows are kept and written again.
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include "library/values/FaceObjects.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropText.h"

namespace {
using TSetting = TVRXCFCSettingObject;
constexpr int Version = 1;
const QString Indent = QStringLiteral("  ");
QString Title(bool states) {
  return QStringLiteral("FaceController %1")
      .arg(states ? QStringLiteral("states") : QStringLiteral("settings"));
}

const TTypeInfo& KindType() { return TypeInfoOf<TVRXCFCSettingObjectKind>::Get(); }
const TTypeInfo& StateType() { return TypeInfoOf<TVRXStateKind>::Get(); }

const QString End = QStringLiteral("end"), Use = QStringLiteral("use ");
bool IsHead(const QString& line) {
  static const QRegularExpression head(QStringLiteral("^[A-Za-z][A-Za-z0-9_]*( .*)?$"));
  return line != End && head.match(line).hasMatch();
}
// A form may say anything there: what would not be read again is no line.
bool CanBeValue(const TPersistent* object, const QString& line) {
  if (!object) return true;
  try {
    ReadValueLine(*object->ClassType().NewPersistent(), line);
  } catch (const Exception&) {
    return false;
  }
  return true;
}

class Writer {
 public:
  QByteArray Write(const TVRXCFCSettingObjects& settings, const TVRXCFCStateObjects* states) {
    lines_ << QStringLiteral("%1 %2").arg(Title(states != nullptr)).arg(Version);
    for (int i = 0; i < settings.Count(); ++i) Setting(*settings.Setting(i));
    for (int i = 0; states && i < states->Count(); ++i) State(*states->Items(i));
    Foreign(settings.ForeignBlocks());
    lines_ << End;
    return (lines_.join(u'\n') + u'\n').toUtf8();
  }

 private:
  void Setting(const TSetting& item) {
    lines_ << QStringLiteral("setting %1 %2")
                  .arg(OrdToText(KindType(), static_cast<int>(item.Get(TSetting::Kind))),
                       QuotedText(item.Get(TSetting::ObjName)));
    if (const TPersistent* object = item.Object())
      for (const QString& line : ValueLines(*object)) lines_ << Indent + line;
    for (const QString& line : item.Get(TSetting::Foreign).split(u'\n'))
      if (!line.trimmed().isEmpty() && CanBeValue(item.Object(), line)) lines_ << Indent + line.trimmed();
  }
  void State(const TVRXCFCStateObject& state) {
    QString head = QStringLiteral("state");
    for (int i = 0; i < StateType().Elements.size(); ++i)
      if (state.Get(TVRXCFCStateObject::Kind).Contains(static_cast<TVRXStateKind>(i)))
        head += u' ' + QString::fromLatin1(StateType().Elements[i]);
    lines_ << head;
    for (const QString& name : state.Names()) lines_ << Indent + QStringLiteral("use ") + QuotedText(name);
    for (const QString& line : state.Get(TVRXCFCStateObject::Foreign).split(u'\n'))
      if (!line.trimmed().isEmpty() && !line.trimmed().startsWith(Use)) lines_ << Indent + line.trimmed();
  }
  // A block begins at the margin, its lines do not.
  void Foreign(const QString& blocks) {
    bool inside = false;
    for (const QString& line : blocks.split(u'\n')) {
      if (line.trimmed().isEmpty()) continue;
      const bool head = IsHead(line);
      if (head || inside) lines_ << (head ? line : Indent + line.trimmed());
      inside |= head;
    }
  }
  QStringList lines_;
};

class Reader {
 public:
  Reader(const QByteArray& bytes, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states)
      : settings_(settings), states_(states) {
    const QByteArray mark = "\xEF\xBB\xBF";
    const QByteArray plain = bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes;
    QString text = QString::fromUtf8(plain);
    if (text.toUtf8() != plain) Refuse(QStringLiteral("it is no text"));
    lines_ = text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(u'\n');
    if (text.contains(QChar(0))) Refuse(QStringLiteral("it is no text"));
  }
  void Read() {
    Head();
    bool ended = false;
    for (at_ = 1; at_ < lines_.size(); ++at_) {
      const QString& line = lines_[at_];
      if (line.trimmed().isEmpty()) continue;
      if (ended) Refuse(QStringLiteral("there is something behind the end"));
      if (line == End)
        ended = true;
      else if (line.startsWith(u' ') || line.startsWith(u'\t'))
        Inside(line.trimmed());
      else
        Block(line);
    }
    if (!ended) {
      at_ = lines_.size() - 1;
      Refuse(QStringLiteral("it ends before its last line, \"end\""));
    }
    settings_.SetForeignBlocks(foreign_.join(u'\n'));
  }

 private:
  [[noreturn]] void Refuse(const QString& why) const {
    throw Exception(QStringLiteral("line %1: %2").arg(at_ + 1).arg(why));
  }

  void Head() {
    static const QRegularExpression head(QStringLiteral("^FaceController ([a-z]+) ([0-9]{1,6})$"));
    const auto match = head.match(lines_[0]);
    if (!match.hasMatch() || !lines_[0].startsWith(Title(states_ != nullptr) + u' '))
      Refuse(QStringLiteral("a file that begins with \"%1 %2\" is needed")
                 .arg(Title(states_ != nullptr))
                 .arg(Version));
    const int version = match.captured(2).toInt();
    if (version != Version)
      Refuse(QStringLiteral("the file is of version %1, and only version %2 is known")
                 .arg(version)
                 .arg(Version));
  }

  void Block(const QString& line) {
    if (!IsHead(line)) Refuse(QStringLiteral("\"%1\" begins no block").arg(Short(line)));
    setting_ = nullptr;
    state_ = nullptr;
    const QString word = line.section(u' ', 0, 0), rest = line.section(u' ', 1).trimmed();
    const bool known = (word == QStringLiteral("setting") && Setting(rest)) ||
                       (word == QStringLiteral("state") && State(rest));
    if (!known) foreign_ << line;
  }

  // False for a kind of a later version.
  bool Setting(const QString& rest) {
    QString name;
    if (!UnquotedText(QStringView(rest).mid(rest.indexOf(u' ') + 1), name) || !rest.contains(u' '))
      Refuse(QStringLiteral("a setting needs its kind and its name in quotes"));
    const int kind = KindType().IndexOfElement(rest.section(u' ', 0, 0).toLatin1());
    if (kind < 0) return false;
    setting_ = static_cast<TSetting*>(settings_.Add());
    setting_->Set(TSetting::Kind, static_cast<TVRXCFCSettingObjectKind>(kind));
    setting_->Set(TSetting::ObjName, name);
    return true;
  }

  bool State(const QString& rest) {
    if (!states_) return false;
    TVRXStateKinds kinds;
    for (const QString& word : rest.split(u' ', Qt::SkipEmptyParts)) {
      const int kind = StateType().IndexOfElement(word.toLatin1());
      if (kind < 0) return false;
      kinds.Include(static_cast<TVRXStateKind>(kind));
    }
    state_ = states_->Add();
    state_->Set(TVRXCFCStateObject::Kind, kinds);
    return true;
  }

  void Inside(const QString& line) {
    if (setting_) {
      TPersistent* const object = setting_->Object();
      try {
        if (object && ReadValueLine(*object, line) == TValueRead::Taken) return;
      } catch (const Exception& error) {
        Refuse(error.Message());
      }
      return Keep(*setting_, TSetting::Foreign, line);
    }
    if (state_) {
      if (!line.startsWith(Use)) return Keep(*state_, TVRXCFCStateObject::Foreign, line);
      QString name;
      if (!UnquotedText(QStringView(line).sliced(Use.size()).trimmed(), name))
        Refuse(QStringLiteral("what a state uses stands in quotes"));
      state_->Get(TVRXCFCStateObject::Objects)->Add(name);
      return;
    }
    if (foreign_.isEmpty()) Refuse(QStringLiteral("a line of a block stands in none"));
    foreign_ << Indent + line;
  }

  static void Keep(TCollectionItem& item, const TKept<QString>& property, const QString& line) {
    const QString before = item.Get(property);
    item.Set(property, before.isEmpty() ? line : before + u'\n' + line);
  }
  static QString Short(const QString& text) {
    constexpr int most = 40;
    return text.size() > most ? text.left(most) + QStringLiteral("...") : text;
  }

  QStringList lines_;
  qsizetype at_ = 0;
  TVRXCFCSettingObjects& settings_;
  TVRXCFCStateObjects* states_;
  TSetting* setting_ = nullptr;
  TVRXCFCStateObject* state_ = nullptr;
  QStringList foreign_;
};
}  // namespace

QByteArray VRXFaceText(const TVRXCFCSettingObjects& settings, const TVRXCFCStateObjects* states) {
  return Writer().Write(settings, states);
}

void VRXReadFaceText(const QByteArray& text, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states) {
  TVRXCFCSettingObjects newSettings;
  TVRXCFCStateObjects newStates;
  Reader(text, newSettings, states ? &newStates : nullptr).Read();
  settings.Assign(&newSettings);
  if (states) states->Assign(&newStates);
}

void VRXLoadFace(const QString& fileName, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states) {
  constexpr qint64 most = qint64{64} << 20;
  const auto refuse = [&](const QString& why) {
    throw Exception(QStringLiteral("%1 cannot be read: %2.").arg(fileName, why));
  };
  const QFileInfo info(fileName);
  if (info.exists() && !info.isFile()) refuse(QStringLiteral("it is no file"));
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) refuse(file.errorString());
  if (file.size() > most) refuse(QStringLiteral("it is larger than %1 MB").arg(most >> 20));
  try {
    VRXReadFaceText(file.readAll(), settings, states);
  } catch (const Exception& error) {
    refuse(error.Message());
  }
}

void VRXSaveFace(const QString& fileName, const TVRXCFCSettingObjects& settings,
                 const TVRXCFCStateObjects* states) {
  const QByteArray text = VRXFaceText(settings, states);
  QSaveFile file(fileName);
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
    throw Exception(QStringLiteral("%1 cannot be written: %2.").arg(fileName, file.errorString()));
}
