// Asks of a control that every property shows: rows say from which look a value changes the picture.
#pragma once
#include <gtest/gtest.h>

#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "tests/library/LibraryTest.h"

namespace visible {
// "Shadow.Style=hssSolid Square=True"
inline void Apply(TPersistent& instance, const QString& values) {
  for (const QString& value : values.split(u' ', Qt::SkipEmptyParts)) {
    TPersistent* object = &instance;
    QStringList path = value.section(u'=', 0, 0).split(u'.');
    const QString last = path.takeLast();
    for (const QString& part : path)
      object = GetObjectProp(*object, object->ClassType().GetProp(part.toLatin1()));
    SetPropText(*object, object->ClassType().GetProp(last.toLatin1()), value.section(u'=', 1));
  }
}

struct Row {
  const char* look;    // what is there before
  const char* change;  // and the value that is to be seen
};

// The ordinals that are published, those of parts included, but for what starts with one of `others`.
inline void Collect(const TPersistent& instance, const QString& prefix, const QStringList& others,
                    QStringList& paths) {
  for (const TPropInfo* prop : instance.ClassType().Properties()) {
    const QString path = prefix + QString::fromLatin1(prop->Name);
    if (prop->Visibility != TPropVisibility::Published ||
        std::any_of(others.begin(), others.end(), [&](const QString& o) { return path.startsWith(o); }))
      continue;
    if (prop->IsPart())
      Collect(*GetObjectProp(instance, *prop), path + u'.', others, paths);
    else if (prop->IsOrdinal())
      paths << path;
  }
}

template <class C>
void ExpectAll(std::initializer_list<Row> rows, QSize size, QStringList others) {
  others << QStringLiteral("Align") << QStringLiteral("Anchors") << QStringLiteral("Visible")
         << QStringLiteral("Tab") << QStringLiteral("ParentShowHint") << QStringLiteral("ShowHint")
         << QStringLiteral("ParentColor") << QStringLiteral("Left") << QStringLiteral("Top")
         << QStringLiteral("Width") << QStringLiteral("Height") << QStringLiteral("Cursor")
         << QStringLiteral("Tag") << QStringLiteral("HelpContext") << QStringLiteral("Hint");
  QStringList missing;
  Collect(C(nullptr), {}, others, missing);
  EXPECT_GE(missing.size(), 4);
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.look) + " | " + row.change);
    C control(nullptr);
    control.SetBounds(0, 0, size.width(), size.height());
    Apply(control, QString::fromLatin1(row.look));
    const QImage before = Draw(control, Qt::magenta);
    EXPECT_EQ(Draw(control, Qt::magenta), before);
    Apply(control, QString::fromLatin1(row.change));
    EXPECT_NE(Draw(control, Qt::magenta), before);
    missing.removeAll(QString::fromLatin1(row.change).section(u'=', 0, 0));
  }
  EXPECT_EQ(missing.join(u' ').toStdString(), "");
}
}  // namespace visible
