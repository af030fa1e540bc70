#include "cli/ComponentsPage.h"

#include <map>

#include "ide/ClassDescription.h"
#include "ide/ComponentPicture.h"

namespace {
// What so many components publish alike is told once.
constexpr int Many = 12;

struct Chapter {
  QString title;
  std::vector<ClassDescription> classes;
};

// As text of a table cell.
QString Cell(QString text) { return text.simplified().replace(u'|', QStringLiteral("\\|")); }
QString Code(const QString& text) { return text.isEmpty() ? QString() : u'`' + text.simplified() + u'`'; }
QString Anchor(QString title) { return title.toLower().replace(u' ', u'-'); }

QString KeyOf(const PropertyDescription& p) { return p.name + u'\n' + p.type + u'\n' + p.doc; }

class Page {
 public:
  explicit Page(DesignRegistry& registry) : registry_(registry) {
    for (const TPalettePage& page : PagesOfPictures(registry)) {
      Chapter& chapter =
          chapters_.emplace_back(Chapter{page.Name.isEmpty() ? QStringLiteral("On no page") : page.Name, {}});
      for (const TClass* cls : page.Classes) {
        chapter.classes.push_back(Describe(*cls, registry));
        Count(*cls);
      }
    }
  }

  QString Text() {
    text_ += QStringLiteral(
        "# Components\n\n"
        "Made by `make docs` from what the classes say of themselves (`vrx describe --page`, `vrx gallery`): "
        "change "
        "the\nclasses, not this page.\n\n| Page | Components |\n| --- | --- |\n");
    for (const Chapter& chapter : chapters_) Contents(chapter);
    for (const Chapter& chapter : chapters_) {
      text_ += QStringLiteral("\n## %1\n").arg(chapter.title);
      if (chapter.title == QStringLiteral("VRX Labeled"))
        text_ += QStringLiteral(
            "\nOn the palette while View > Palette with labeled variants is checked; forms may hold them at "
            "any "
            "time.\n");
      for (const ClassDescription& c : chapter.classes) Write(c);
    }
    text_ += QStringLiteral("\n## Values\n\nWhat components have as parts.\n");
    for (const auto& [name, cls] : values_) WriteValue(Describe(*cls, registry_));
    text_ += QStringLiteral(
        "\n## Common properties\n\nThose that many components have alike; each names them.\n\n");
    Table(Common());
    return text_;
  }

 private:
  // The classes of parts, too.
  void Count(const TClass& cls) {
    for (const TPropInfo* prop : cls.Properties())
      if (prop->Visibility == TPropVisibility::Published && prop->IsPart() && prop->PropType->ClassType)
        if (const TClass& part = prop->PropType->ClassType();
            values_.try_emplace(part.ClassName(), &part).second)
          Count(part);
  }
  bool IsCommon(const PropertyDescription& p) {
    if (counts_.empty())
      for (const Chapter& chapter : chapters_)
        for (const ClassDescription& c : chapter.classes)
          for (const auto* list : {&c.properties, &c.events})
            for (const PropertyDescription& q : *list) ++counts_[KeyOf(q)];
    return counts_[KeyOf(p)] >= Many;
  }
  std::vector<PropertyDescription> Common() {
    std::map<QString, PropertyDescription> found;
    for (const Chapter& chapter : chapters_)
      for (const ClassDescription& c : chapter.classes)
        for (const auto* list : {&c.properties, &c.events})
          for (const PropertyDescription& p : *list)
            if (IsCommon(p)) found.try_emplace(KeyOf(p), p);
    std::vector<PropertyDescription> all;
    for (auto& [key, p] : found) {
      p.defaultText.reset();  // each class has its own
      all.push_back(std::move(p));
    }
    return all;
  }

  void Contents(const Chapter& chapter) {
    QStringList links;
    for (const ClassDescription& c : chapter.classes)
      links << QStringLiteral("[%1](#%2)").arg(c.name, Anchor(c.name));
    text_ += QStringLiteral("| [%1](#%2) | %3 |\n")
                 .arg(chapter.title, Anchor(chapter.title), links.join(QStringLiteral(", ")));
  }

  void Write(const ClassDescription& c) {
    text_ += QStringLiteral("\n### %1\n\n![%1](pictures/components/%1.png)\n\n%2\n\n")
                 .arg(c.name, c.doc.simplified());
    text_ += QStringLiteral("Descends from %1.").arg(Code(c.ancestors.value(0)));
    QStringList verbs;
    for (QString verb : c.verbs)
      if (verb != QStringLiteral("-")) verbs << u'"' + verb.remove(u'&') + u'"';
    if (!verbs.isEmpty()) text_ += QStringLiteral(" Verbs: %1.").arg(verbs.join(QStringLiteral(", ")));
    text_ += u'\n';
    std::vector<PropertyDescription> own;
    QStringList common;
    for (const auto* list : {&c.properties, &c.events})
      for (const PropertyDescription& p : *list)
        if (IsCommon(p))
          common << p.name;
        else
          own.push_back(p);
    if (!own.empty()) text_ += u'\n';
    Table(own);
    if (!common.isEmpty())
      text_ += QStringLiteral("\n[Common](#common-properties): %1.\n").arg(common.join(QStringLiteral(", ")));
  }
  void WriteValue(const ClassDescription& c) {
    if (c.properties.empty()) return;
    text_ += QStringLiteral("\n### %1\n\n").arg(c.name);
    if (!c.doc.isEmpty()) text_ += c.doc.simplified() + QStringLiteral("\n\n");
    Table(c.properties);
  }
  void Table(const std::vector<PropertyDescription>& properties) {
    if (properties.empty()) return;
    text_ += QStringLiteral("| Property | Type | Default | Purpose |\n| --- | --- | --- | --- |\n");
    for (const PropertyDescription& p : properties)
      text_ += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                   .arg(p.name, Cell(p.type), Cell(Code(p.defaultText.value_or(QString()))), Cell(p.doc));
  }

  DesignRegistry& registry_;
  std::vector<Chapter> chapters_;
  std::map<QByteArray, const TClass*> values_;
  std::map<QString, int> counts_;
  QString text_;
};
}  // namespace

QString ComponentsPage(DesignRegistry& registry) { return Page(registry).Text(); }
