// Files of face controllers: a block for each setting object and each state. Blocks and lines that nobody
// here knows are kept and written again.
#include "library/values/BlockFile.h"
#include "library/values/FaceObjects.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropText.h"
#include "vcl/UserFile.h"

namespace {
using TSetting = TVRXCFCSettingObject;
const QString Use = QStringLiteral("use ");
QString Title(bool states) {
  return QStringLiteral("FaceController %1")
      .arg(states ? QStringLiteral("states") : QStringLiteral("settings"));
}

const TTypeInfo& KindType() { return TypeInfoOf<TVRXCFCSettingObjectKind>::Get(); }
const TTypeInfo& StateType() { return TypeInfoOf<TVRXStateKind>::Get(); }

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
    lines_ << VRXBlockTitle(Title(states != nullptr));
    for (int i = 0; i < settings.Count(); ++i) Setting(*settings.Setting(i));
    for (int i = 0; states && i < states->Count(); ++i) State(*states->Items(i));
    Foreign(settings.ForeignBlocks());
    return VRXBlockText(lines_ << VRXBlockEnd);
  }

 private:
  void Setting(const TSetting& item) {
    lines_ << QStringLiteral("setting %1 %2")
                  .arg(OrdToText(KindType(), static_cast<int>(item.Get(TSetting::Kind))),
                       QuotedText(item.Get(TSetting::ObjName)));
    if (const TPersistent* object = item.Object())
      for (const QString& line : ValueLines(*object)) lines_ << VRXBlockIndent + line;
    for (const QString& line : item.Get(TSetting::Foreign).split(u'\n'))
      if (!line.trimmed().isEmpty() && CanBeValue(item.Object(), line))
        lines_ << VRXBlockIndent + line.trimmed();
  }
  void State(const TVRXCFCStateObject& state) {
    QString head = QStringLiteral("state");
    for (int i = 0; i < StateType().Elements.size(); ++i)
      if (state.Get(TVRXCFCStateObject::Kind).Contains(static_cast<TVRXStateKind>(i)))
        head += u' ' + QString::fromLatin1(StateType().Elements[i]);
    lines_ << head;
    for (const QString& name : state.Names())
      lines_ << VRXBlockIndent + QStringLiteral("use ") + QuotedText(name);
    for (const QString& line : state.Get(TVRXCFCStateObject::Foreign).split(u'\n'))
      if (!line.trimmed().isEmpty() && !line.trimmed().startsWith(Use))
        lines_ << VRXBlockIndent + line.trimmed();
  }
  // A block begins at the margin, its lines do not.
  void Foreign(const QString& blocks) {
    bool inside = false;
    for (const QString& line : blocks.split(u'\n')) {
      if (line.trimmed().isEmpty()) continue;
      const bool head = VRXIsBlockHead(line);
      if (head || inside) lines_ << (head ? line : VRXBlockIndent + line.trimmed());
      inside |= head;
    }
  }
  QStringList lines_;
};

class Reader : public VRXBlockReader {
 public:
  Reader(TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states)
      : settings_(settings), states_(states) {}
  void Read(const QByteArray& bytes) {
    ReadLines(Title(states_ != nullptr), VRXBlockLines(bytes));
    settings_.SetForeignBlocks(Foreign().join(u'\n'));
  }

 private:
  bool Block(const QString& word, const QString& rest) override {
    setting_ = nullptr;
    state_ = nullptr;
    return (word == QStringLiteral("setting") && Setting(rest)) ||
           (word == QStringLiteral("state") && State(rest));
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

  void Inside(const QString& line) override {
    if (setting_) {
      TPersistent* const object = setting_->Object();
      try {
        if (object && ReadValueLine(*object, line) == TValueRead::Taken) return;
      } catch (const Exception& error) {
        Refuse(error.Message());
      }
      return Keep(*setting_, TSetting::Foreign, line);
    }
    if (!line.startsWith(Use)) return Keep(*state_, TVRXCFCStateObject::Foreign, line);
    QString name;
    if (!UnquotedText(QStringView(line).sliced(Use.size()).trimmed(), name))
      Refuse(QStringLiteral("what a state uses stands in quotes"));
    state_->Get(TVRXCFCStateObject::Objects)->Add(name);
  }

  static void Keep(TCollectionItem& item, const TKept<QString>& property, const QString& line) {
    const QString before = item.Get(property);
    item.Set(property, before.isEmpty() ? line : before + u'\n' + line);
  }

  TVRXCFCSettingObjects& settings_;
  TVRXCFCStateObjects* states_;
  TSetting* setting_ = nullptr;
  TVRXCFCStateObject* state_ = nullptr;
};
}  // namespace

QByteArray VRXFaceText(const TVRXCFCSettingObjects& settings, const TVRXCFCStateObjects* states) {
  return Writer().Write(settings, states);
}

void VRXReadFaceText(const QByteArray& text, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states) {
  TVRXCFCSettingObjects newSettings;
  TVRXCFCStateObjects newStates;
  Reader(newSettings, states ? &newStates : nullptr).Read(text);
  settings.Assign(&newSettings);
  if (states) states->Assign(&newStates);
}

void VRXLoadFace(const QString& fileName, TVRXCFCSettingObjects& settings, TVRXCFCStateObjects* states) {
  const QByteArray text = ReadUserFile(fileName);
  try {
    VRXReadFaceText(text, settings, states);
  } catch (const Exception& error) {
    CannotReadUserFile(fileName, error.Message());
  }
}

void VRXSaveFace(const QString& fileName, const TVRXCFCSettingObjects& settings,
                 const TVRXCFCStateObjects* states) {
  WriteUserFile(fileName, VRXFaceText(settings, states));
}
