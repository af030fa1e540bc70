#include "ide/Ancestors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <algorithm>

#include "forms/FormFile.h"
#include "ide/ChildOrder.h"
#include "ide/UnitText.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

using namespace forms;

namespace {
// A frame may hold frames that hold frames: few files can make many objects.
constexpr int MostImplied = 20000;
constexpr qsizetype MostFiles = 100;
constexpr qsizetype MostLevels = 16;
constexpr qint64 LargestFile = qint64{16} << 20;

QString Translated(const char* text) { return QCoreApplication::translate("Ancestors", text); }
QString Text(const QByteArray& name) { return QString::fromUtf8(name); }
QByteArray Owned(const QByteArray& b) { return QByteArray(b.constData(), b.size()); }
QString Quoted(const QString& fileName) { return QFileInfo(fileName).fileName(); }

// The framework's own, which no form file has.
bool IsBase(const QByteArray& className) {
  static const QByteArrayList bases{"tform", "tframe", "tdatamodule", "tcustomform", "tcustomframe"};
  return bases.contains(className.toLower()) || FindClass(className);
}

QByteArray ReadSmall(const QString& name) {
  if (QFileInfo(name).size() > LargestFile)
    throw Exception(Translated("it is larger than %1 MB").arg(LargestFile >> 20));
  return ReadFile(name);
}

int DepthOf(const Object& object) { return object.parent ? DepthOf(*object.parent) + 1 : 1; }

bool HoldsFrames(const Object& object) {
  return object.kind == ObjectKind::Inline ||
         std::any_of(object.children.begin(), object.children.end(),
                     [](const auto& child) { return HoldsFrames(*child); });
}
}  // namespace

// What a form or a frame says of inherited components, wherever in it.
struct Ancestors::Scope {
  QHash<QByteArray, Object*> own;  // by name in lower case

  Scope(Object& top, const Object& origin) {
    QSet<QByteArray> frames;
    CollectFrames(origin, frames);
    Collect(top, frames);
  }

 private:
  static void CollectFrames(const Object& object, QSet<QByteArray>& frames) {
    for (const auto& child : object.children) {
      if (child->IsFrame())
        frames.insert(child->name.toLower());
      else
        CollectFrames(*child, frames);
    }
  }
  void Collect(Object& object, const QSet<QByteArray>& frames) {
    for (const auto& child : object.children) {
      const QByteArray name = child->name.toLower();
      if (child->kind == ObjectKind::Inherited && !name.isEmpty() && !own.contains(name))
        own.insert(name, child.get());
      if (child->kind != ObjectKind::Inline && !frames.contains(name)) Collect(*child, frames);
    }
  }
};

// One document that gets its origins.
class Ancestors::Completing {
 public:
  Completing(Ancestors& ancestors, int& implied) : ancestors_(ancestors), implied_(implied) {}

  // Gives the file of the ancestor, which may be known.
  File* Root(Object& root, const QString& formFile, File* ancestor = nullptr) {
    if (root.kind == ObjectKind::Inherited) {
      QStringList problems;
      if (ancestor)
        problems = ancestor->problems;
      else
        ancestor = ancestors_.AncestorOf(root.className, formFile, problems);
      if (ancestor) Tie(root, *ancestor->document, ancestor->document->Root());
      Tell(root, problems);
    }
    Frames(root);
    return ancestor;
  }
  void Frames(Object& object) {
    if (object.kind == ObjectKind::Inline && object.parent && !IsBase(object.className)) {
      QStringList problems;
      File* file = ancestors_.FileOf(object.className, problems);
      if (file) Tie(object, *file->document, file->document->Root());
      Tell(object, problems);
    }
    for (const auto& child : object.children) Frames(*child);
  }
  std::vector<std::pair<const Object*, QString>> Problems() { return std::move(problems_); }

 private:
  void Tell(const Object& object, const QStringList& problems) {
    for (const QString& text : problems)
      if (!told_.contains(text)) {
        told_.insert(text);
        problems_.emplace_back(&object, text);
      }
  }
  void Tie(Object& object, const Document& document, const Object& origin) {
    object.origin = std::make_unique<Origin>(Origin{&document, &origin});
    const Scope scope(object, origin);
    TieChildren(object, document, origin, scope, DepthOf(object) + 1);
  }
  void TieChildren(Object& object, const Document& document, const Object& origin, const Scope& scope,
                   int depth) {
    // What is implied stands where it stands in the ancestor: behind the same neighbour.
    int at = 0;
    for (const auto& theirs : origin.children) {
      if (theirs->name.isEmpty()) continue;
      Object* own = scope.own.value(theirs->name.toLower());
      if (own && own->implied) ++implied_;
      if (!own) own = Imply(object, *theirs, at, depth);
      if (!own)
        return Tell(object, {Translated("More is inherited here than is shown: no more than %1 "
                                        "components, nested no more than %2 deep.")
                                 .arg(MostImplied)
                                 .arg(MaxDepth)});
      if (own->parent == &object) at = own->IndexInParent() + 1;
      if (theirs->IsFrame()) {
        Tie(*own, document, *theirs);
      } else {
        own->origin = std::make_unique<Origin>(Origin{&document, theirs.get()});
        TieChildren(*own, document, *theirs, scope, depth + 1);
      }
    }
    PlaceImplied(object);
  }
  Object* Imply(Object& parent, const Object& theirs, int at, int depth) {
    if (implied_ >= MostImplied || depth > MaxDepth) return nullptr;
    ++implied_;
    auto object = std::make_unique<Object>();
    object->kind = ObjectKind::Inherited;
    object->name = Owned(theirs.name);
    object->className = Owned(theirs.className);
    object->implied = true;
    Object* made = object.get();
    parent.Insert(at, std::move(object));
    return made;
  }

  Ancestors& ancestors_;
  int& implied_;
  QSet<QString> told_;
  std::vector<std::pair<const Object*, QString>> problems_;
};

Ancestors::Ancestors(QString fileName) : fileName_(std::move(fileName)) {
  if (fileName_ == QStringLiteral("-")) fileName_.clear();
}
Ancestors::~Ancestors() = default;

const FormFolder& Ancestors::Folder() {
  if (!folder_) folder_ = std::make_unique<FormFolder>(fileName_);
  return *folder_;
}

// Those that could not be read are asked again when the form is opened again.
QStringList Ancestors::Changed() const {
  QStringList changed;
  for (const auto& [name, file] : files_) {
    if (!file.document) continue;
    try {
      if (ReadSmall(name) == file.document->Source()) continue;
    } catch (const Exception&) {
      // Gone, or no longer to be read.
    }
    changed << name;
  }
  return changed;
}

std::vector<Finding> Ancestors::Complete(Document& document) { return Complete(document, document.Root()); }

std::vector<Finding> Ancestors::Complete(const Document& document, Object& object) {
  std::vector<Finding> findings;
  const bool inherited = !object.parent && object.kind == ObjectKind::Inherited;
  if (fileName_.isEmpty() || !(inherited || HoldsFrames(object))) return findings;
  int implied = 0;
  Completing completing(*this, implied);
  if (object.parent)
    completing.Frames(object);
  else
    ancestor_ = completing.Root(object, fileName_, ancestor_);
  for (const auto& [where, text] : completing.Problems()) {
    findings.push_back({Severity::Note, document.Where(*where), text});
    findings.back().missingFile = true;
  }
  return findings;
}

Ancestors::File* Ancestors::AncestorOf(const QByteArray& className, const QString& formFile,
                                       QStringList& problems) {
  const QString unit = Folder().UnitOf(formFile);
  const QString wanted = QFileInfo(formFile).completeBaseName() + QStringLiteral(".pas");
  if (unit.isEmpty()) {
    problems << Translated(
                    "%1 is inherited, but %2, which says from which class, was not found in %3. What it "
                    "inherits is not shown.")
                    .arg(Text(className), wanted, QDir::toNativeSeparators(Folder().Name()));
    return nullptr;
  }
  try {
    const QByteArray ancestor = DeclaredAncestor(ReadSmall(unit), className);
    if (!ancestor.isEmpty()) return IsBase(ancestor) ? nullptr : FileOf(ancestor, problems);
    problems << Translated(
                    "%1 is inherited, but %2 does not say from which class. What it inherits is not shown.")
                    .arg(Text(className), QDir::toNativeSeparators(unit));
  } catch (const Exception& e) {
    problems << Translated("%1, which says what %2 inherits, cannot be read: %3")
                    .arg(QDir::toNativeSeparators(unit), Text(className), e.Message());
  }
  return nullptr;
}

Ancestors::File* Ancestors::FileOf(const QByteArray& className, QStringList& problems) {
  const QString name = Folder().FileOf(className);
  if (name.isEmpty()) {
    problems << Translated("The form file of %1 was not found in %2. What comes from there is not shown.")
                    .arg(Text(className), QDir::toNativeSeparators(Folder().Name()));
    return nullptr;
  }
  if (SameFile(name, fileName_)) {
    problems << Translated("%1 comes from this form itself; that is not shown again.").arg(Text(className));
    return nullptr;
  }
  const auto found = files_.find(name);
  if (found != files_.end()) {
    File& file = found->second;
    if (file.reading) {
      problems << Translated("%1 stands on itself: %2. That is not shown again.")
                      .arg(Text(className),
                           (path_ + QStringList(Text(className))).join(QStringLiteral(" > ")));
      return nullptr;
    }
    problems << file.problems;
    return file.document ? &file : nullptr;
  }
  if (path_.size() >= MostLevels || files_.size() >= static_cast<std::size_t>(MostFiles)) {
    problems << Translated(
                    "%1 is not shown: more than %2 files, or more than %3 above each other, are not read.")
                    .arg(Text(className))
                    .arg(MostFiles)
                    .arg(MostLevels);
    return nullptr;
  }
  File& file = files_[name];
  path_ << Text(className);
  const auto done = qScopeGuard([&] {
    path_.removeLast();
    file.reading = false;
  });
  try {
    file.document = Document::Parse(ReadSmall(name), DialectOfName(name));
    Completing completing(*this, implied_);
    completing.Root(file.document->Root(), name);
    for (const auto& [where, text] : completing.Problems())
      file.problems << QStringLiteral("%1: %2").arg(Quoted(name), text);
  } catch (const Exception& e) {
    file.document.reset();
    file.problems = {Translated("%1, which has %2, cannot be read: %3")
                         .arg(QDir::toNativeSeparators(name), Text(className), e.Message())};
  }
  problems << file.problems;
  return file.document ? &file : nullptr;
}
