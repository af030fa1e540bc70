// The dialogs of the framework's own value types: what they take over, and that they take nothing else.
#include "dclstd/DateTimeDialog.h"
#include "dclstd/DialogDescription.h"
#include "dclstd/FilterDialog.h"
#include "dclstd/LinesDialog.h"
#include "dclstd/ShortCutDialog.h"
#include "designintf/IdeTheme.h"
#include "rtl/Strings.h"
#include "tests/designintf/StandardDialogTest.h"
#include "tests/support/Contrast.h"
#include "vcl/Image.h"
#include "vcl/Menu.h"

using namespace fields;

// --- All of them

TEST_F(StandardDialogs, AreRegisteredAndEveryControlHasAName) {
  QStringList names;
  for (const TDialogRegistration& entry : registry.Dialogs()) {
    SCOPED_TRACE(entry.Name.constData());
    names << QString::fromLatin1(entry.Name);
    const auto dialog = registry.Open(entry);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(IsIDEThemed(*dialog));
    QStringList controls;
    int tabs = 0;
    for (const ControlDescription& control : DescribeControls(*dialog)) {
      controls << control.name;
      if (control.tab) ++tabs;
    }
    EXPECT_EQ(controls.removeDuplicates(), 0) << controls.join(u' ').toStdString();
    EXPECT_GE(tabs, 5);
    QStringList defaults;
    for (const QPushButton* button : dialog->findChildren<QPushButton*>()) {
      if (button->isDefault()) defaults << button->text();
      EXPECT_FALSE(button->autoDefault()) << button->objectName().toStdString();
    }
    EXPECT_EQ(defaults, QStringList{QStringLiteral("OK")});
  }
  EXPECT_EQ(names.join(u' ').toStdString(),
            "LinesDialog PictureEditorDialog ImageListDialog ShortCutDialog FilterDialog DateTimeDialog "
            "TreeItemsDialog ListItemsDialog CellsDialog EditMaskDialog");
}

TEST_F(StandardDialogs, TextsFitInBothThemes) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    for (const TDialogRegistration& entry : registry.Dialogs()) {
      SCOPED_TRACE(entry.Name.constData());
      const auto dialog = registry.Open(entry);
      ShowActive(*dialog);
      EXPECT_EQ(qGray(dialog->grab().toImage().pixel(2, dialog->height() - 3)) < 128, theme == TTheme::Dark);
      for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty() || button->objectName().startsWith(u"qt_"))
          continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        EXPECT_TRUE(dialog->rect().contains(QRect(button->mapTo(dialog.get(), QPoint()), button->size())));
      }
    }
  }
}

// --- Lines

class LinesEditor : public StandardDialogs {
 protected:
  bool Run(TStrings& lines, std::function<void(LinesDialog&)> act) {
    modal::NextOf<LinesDialog>([act = std::move(act)](LinesDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    return EditLines(lines);
  }
};

TEST_F(LinesEditor, CountsTheLines) {
  TStrings lines;
  EXPECT_TRUE(Run(lines, [](LinesDialog& dialog) {
    EXPECT_EQ(dialog.count->text(), QStringLiteral("0 lines"));
    QTest::keyClicks(dialog.text, QStringLiteral("one"));
    EXPECT_EQ(dialog.count->text(), QStringLiteral("1 line"));
    QTest::keyClick(dialog.text, Qt::Key_Return);
    QTest::keyClick(dialog.text, Qt::Key_Return);
    EXPECT_EQ(dialog.count->text(), QStringLiteral("3 lines"));
  }));
  EXPECT_EQ(lines.Lines(), (QStringList{QStringLiteral("one"), QString(), QString()}));
}

TEST_F(LinesEditor, ControlReturnConfirmsAndCancelKeeps) {
  TStrings lines;
  lines.SetLines({QStringLiteral("a")});
  EXPECT_TRUE(Run(lines, [](LinesDialog& dialog) {
    EXPECT_FALSE(dialog.monospaced->isChecked());
    QTest::keyClicks(dialog.text, QStringLiteral("b"));
    QTest::keyClick(dialog.text, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dialog.isVisible());
  }));
  EXPECT_EQ(lines.Text(), QStringLiteral("ba"));
  EXPECT_FALSE(Run(lines, [](LinesDialog& dialog) {
    QTest::keyClicks(dialog.text, QStringLiteral("c"));
    dialog.cancel->click();
  }));
  EXPECT_EQ(lines.Text(), QStringLiteral("ba"));
}

TEST_F(LinesEditor, FindsOnFromTheCursorAndFromTheStartAgain) {
  TStrings lines;
  lines.SetLines({QStringLiteral("red pear"), QStringLiteral("plum"), QStringLiteral("green Pear")});
  EXPECT_FALSE(Run(lines, [](LinesDialog& dialog) {
    QTest::keyClick(dialog.text, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(dialog.focusWidget(), dialog.find);
    QTest::keyClicks(dialog.find, QStringLiteral("pear"));
    const auto line = [&] { return dialog.text->textCursor().blockNumber(); };
    QTest::keyClick(dialog.find, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible()) << "Return finds here";
    EXPECT_EQ(dialog.text->textCursor().selectedText(), QStringLiteral("pear"));
    EXPECT_EQ(line(), 0);
    QTest::keyClick(dialog.find, Qt::Key_F3);
    EXPECT_EQ(line(), 2);
    Click(dialog.next);
    EXPECT_EQ(line(), 0);
    dialog.find->setText(QStringLiteral("fig"));
    Click(dialog.next);
    EXPECT_EQ(line(), 0) << "the cursor stays";
    EXPECT_EQ(dialog.count->text(), QStringLiteral("Not found: fig"));
  })) << "looking for something is no change";
}

TEST_F(LinesEditor, LoadsAndSavesFiles) {
  TStrings lines;
  lines.SetLines({QStringLiteral("old")});
  prompts.file = FileWith("caf\xC3\xA9\r\n\r\nend\r\n", "in.txt");
  prompts.saveAs = folder.filePath(QStringLiteral("out.txt"));
  EXPECT_TRUE(Run(lines, [](LinesDialog& dialog) {
    Click(dialog.load);
    EXPECT_EQ(dialog.count->text(), QStringLiteral("3 lines"));
    Click(dialog.save);
  }));
  EXPECT_EQ(lines.Lines(), (QStringList{QStringLiteral("caf\u00E9"), QString(), QStringLiteral("end")}));
  EXPECT_EQ(Read(prompts.saveAs), "caf\xC3\xA9\n\nend\n");
  prompts.file = FileWith("caf\xE9", "latin.txt");
  EXPECT_TRUE(Run(lines, [](LinesDialog& dialog) { Click(dialog.load); }));
  EXPECT_EQ(lines.Lines(), QStringList{QStringLiteral("caf\u00E9")});
  prompts.file = folder.filePath(QStringLiteral("missing.txt"));
  EXPECT_FALSE(Run(lines, [](LinesDialog& dialog) { Click(dialog.load); }));
  ASSERT_EQ(prompts.warned.size(), 1);
  EXPECT_TRUE(prompts.warned[0].contains(QStringLiteral("missing.txt"))) << prompts.warned[0].toStdString();
  EXPECT_EQ(lines.Lines(), QStringList{QStringLiteral("caf\u00E9")});
}

// --- Keys, dates, filters

TEST_F(StandardDialogs, AShortCutIsWrittenChosenOrPressed) {
  TMenuItem item(nullptr), other(nullptr);
  const auto editor = Of({&item, &other}, "ShortCut");
  EXPECT_EQ(editor->GetValue(), QStringLiteral("(None)"));
  EXPECT_TRUE(ValuesOf(*editor).contains(QStringLiteral("Ctrl+C")));
  editor->SetValue(QStringLiteral("ctrl+shift+f4"));
  EXPECT_EQ(editor->GetValue(), QStringLiteral("Shift+Ctrl+F4"));
  EXPECT_EQ(other.Get(TMenuItem::ShortCut), item.Get(TMenuItem::ShortCut));
  EXPECT_THROW(editor->SetValue(QStringLiteral("Ctrl+Nothing")), EPropertyError);
  EXPECT_EQ(editor->GetValue(), QStringLiteral("Shift+Ctrl+F4"));
  const auto run = [&](std::function<void(ShortCutDialog&)> act) {
    modal::NextOf<ShortCutDialog>([act](ShortCutDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    editor->Edit();
  };
  const int before = designer.modified;
  run([](ShortCutDialog& dialog) { EXPECT_EQ(dialog.keys->text(), QStringLiteral("Shift+Ctrl+F4")); });
  run([](ShortCutDialog& dialog) {
    QTest::keyClick(dialog.keys, Qt::Key_K, Qt::AltModifier);
    dialog.cancel->click();
  });
  EXPECT_EQ(designer.modified, before);
  run([](ShortCutDialog& dialog) {
    QTest::keyClick(dialog.keys, Qt::Key_Control, Qt::ControlModifier);
    QTest::keyClick(dialog.keys, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(dialog.usual->currentText(), QStringLiteral("Ctrl+K"));
  });
  EXPECT_EQ(editor->GetValue(), QStringLiteral("Ctrl+K"));
  run([](ShortCutDialog& dialog) {
    dialog.usual->setCurrentIndex(dialog.usual->findText(QStringLiteral("F6")));
    EXPECT_EQ(dialog.keys->text(), QStringLiteral("F6"));
  });
  EXPECT_EQ(editor->GetValue(), QStringLiteral("F6"));
  run([](ShortCutDialog& dialog) { QTest::keyClick(dialog.keys, Qt::Key_Backspace); });
  EXPECT_EQ(editor->GetValue(), QStringLiteral("(None)"));
  EXPECT_TRUE(editor->IsDefault());
}

TEST_F(StandardDialogs, DatesAreWrittenTheSameEverywhere) {
  const std::pair<double, const char*> rows[] = {{0, ""},
                                                 {45360, "2024-03-09"},
                                                 {0.5, "12:00:00"},
                                                 {45360.75, "2024-03-09 18:00:00"},
                                                 {-1.25, "1899-12-29 06:00:00"},
                                                 {1.0 / 86400 / 8, "00:00:00.125"}};
  for (const auto& [days, text] : rows) {
    EXPECT_EQ(DateTimeToText({days}).toStdString(), text);
    const auto back = TextToDateTime(QString::fromLatin1(text));
    ASSERT_TRUE(back) << text;
    EXPECT_NEAR(back->Days, days, 1e-9) << text;
  }
  for (const char* wrong : {"tomorrow", "2024-13-01", "25:00:00", "2024-03-09 18:00:00 CET", "9.3.2024"})
    EXPECT_FALSE(TextToDateTime(QString::fromLatin1(wrong))) << wrong;
  EXPECT_EQ(TextToDateTime(QStringLiteral("45360.5"))->Days, 45360.5);
}

TEST_F(StandardDialogs, ADateIsTakenOnlyWhenOneIsChosen) {
  const auto run = [&](TDateTime& value, std::function<void(DateTimeDialog&)> act) {
    modal::NextOf<DateTimeDialog>([act](DateTimeDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    return EditDateTime(value);
  };
  TDateTime value{45360.123456789};
  EXPECT_FALSE(run(
      value, [](DateTimeDialog& dialog) { EXPECT_EQ(dialog.calendar->selectedDate(), QDate(2024, 3, 9)); }));
  EXPECT_EQ(value.Days, 45360.123456789);
  EXPECT_TRUE(run(value, [](DateTimeDialog& dialog) {
    dialog.calendar->setSelectedDate(QDate(2024, 3, 10));
    dialog.time->setTime(QTime(6, 0));
  }));
  EXPECT_EQ(value.Days, 45361.25);
  EXPECT_FALSE(run(value, [](DateTimeDialog& dialog) {
    Click(dialog.clear);
    dialog.cancel->click();
  }));
  EXPECT_TRUE(run(value, [](DateTimeDialog& dialog) { Click(dialog.clear); }));
  EXPECT_EQ(value.Days, 0);
}

TEST_F(StandardDialogs, ReturnInTheCalendarTakesTheDay) {
  const auto run = [](TDateTime& value, std::initializer_list<Qt::Key> keys) {
    modal::NextOf<DateTimeDialog>([&](DateTimeDialog& dialog) {
      auto* days = dialog.calendar->findChild<QTableView*>();
      days->setFocus();
      for (const Qt::Key key : keys) {
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(days, key);
      }
      EXPECT_FALSE(dialog.isVisible());
      if (dialog.isVisible()) dialog.reject();
    });
    return EditDateTime(value);
  };
  TDateTime value{45360.123456789};
  EXPECT_FALSE(run(value, {Qt::Key_Return})) << "it has this day already";
  EXPECT_EQ(value.Days, 45360.123456789);
  EXPECT_TRUE(run(value, {Qt::Key_Right, Qt::Key_Return}));
  EXPECT_EQ(std::floor(value.Days), 45361);
  value = {};
  EXPECT_TRUE(run(value, {Qt::Key_Return}));
  EXPECT_GT(value.Days, 45000) << "today";
}

TEST_F(StandardDialogs, AFilterIsATable) {
  const auto run = [&](QString& filter, std::function<void(FilterDialog&)> act) {
    modal::NextOf<FilterDialog>([act](FilterDialog& dialog) {
      act(dialog);
      if (dialog.isVisible()) dialog.ok->click();
    });
    return EditFilter(filter);
  };
  const auto texts = [](const FilterDialog& dialog) {
    QStringList all;
    for (int row = 0; row < dialog.table->rowCount(); ++row)
      for (int column = 0; column < 2; ++column) all << dialog.table->item(row, column)->text();
    return all.join(u'/').toStdString();
  };
  QString filter = QStringLiteral("Texts|*.txt;*.log|All");
  EXPECT_FALSE(
      run(filter, [&](FilterDialog& dialog) { EXPECT_EQ(texts(dialog), "Texts/*.txt;*.log/All///"); }));
  EXPECT_EQ(filter, QStringLiteral("Texts|*.txt;*.log|All")) << "as it was, odd as it is";
  EXPECT_TRUE(run(filter, [&](FilterDialog& dialog) {
    dialog.table->item(1, 1)->setText(QStringLiteral("*"));
    dialog.table->item(2, 0)->setText(QStringLiteral("Pictures"));
    dialog.table->item(2, 1)->setText(QStringLiteral("*.png"));
    EXPECT_EQ(dialog.table->rowCount(), 4) << "there is room for the next one";
    dialog.table->setCurrentCell(2, 0);
    Click(dialog.up);
  }));
  EXPECT_EQ(filter, QStringLiteral("Texts|*.txt;*.log|Pictures|*.png|All|*"));
  EXPECT_TRUE(run(filter, [&](FilterDialog& dialog) {
    dialog.table->setCurrentCell(0, 1);
    Click(dialog.remove);
  }));
  EXPECT_EQ(filter, QStringLiteral("Pictures|*.png|All|*"));
  EXPECT_FALSE(run(filter, [&](FilterDialog& dialog) {
    dialog.table->item(0, 0)->setText(QStringLiteral("no"));
    dialog.cancel->click();
  }));
  EXPECT_EQ(filter, QStringLiteral("Pictures|*.png|All|*"));
}

TEST_F(StandardDialogs, TheLinesOfATableCanBeSeenInBothThemes) {
  for (const TTheme theme : {TTheme::Light, TTheme::Dark}) {
    ApplyTheme(theme);
    FilterDialog dialog(nullptr);
    dialog.SetFilter(QStringLiteral("Texts|*.txt"));
    dialog.resize(460, 280);
    const QImage table = dialog.table->viewport()->grab().toImage();
    const int line = dialog.table->rowHeight(0) + dialog.table->rowHeight(1) - 1;
    const double contrast =
        Contrast(table.pixelColor(table.width() / 4, line), table.pixelColor(table.width() / 4, line + 4));
    EXPECT_GT(contrast, 1.3);
    EXPECT_LT(contrast, 4) << "quiet all the same";
  }
}

TEST_F(StandardDialogs, CursorsHaveAPicture) {
  TImage image(nullptr);
  const auto editor = Of({&image}, "Cursor");
  QSet<QByteArray> pictures;
  for (const QString& name : ValuesOf(*editor)) {
    const QImage picture = editor->GetValueIcon(name).pixmap(24, 24).toImage();
    if (name == QStringLiteral("crNone")) continue;
    EXPECT_FALSE(picture.isNull()) << name.toStdString();
    bool any = false;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) any = any || qAlpha(picture.pixel(x, y)) > 128;
    EXPECT_TRUE(any) << name.toStdString();
    pictures.insert(QCryptographicHash::hash(
        QByteArrayView(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()),
        QCryptographicHash::Md5));
  }
  EXPECT_GE(pictures.size(), 14);
}
