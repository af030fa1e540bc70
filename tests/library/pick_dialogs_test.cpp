// Dialogs in which one of what is there is picked: windows, folders, icons, objects.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <QtWidgets>

#include "library/components/IconDialog.h"
#include "library/components/ObjectDialog.h"
#include "library/components/PickDialogs.h"
#include "rtl/Exceptions.h"
#include "tests/support/AnsweredDialog.h"
#include "tests/support/Prompted.h"
#include "tests/support/Waiting.h"

namespace {
constexpr auto Ok = QDialogButtonBox::Ok, Cancel = QDialogButtonBox::Cancel;

// Does that to the real dialog and presses the button.
bool Executed(TVRXBaseDialog& component, QDialogButtonBox::StandardButton button,
              const std::function<void(QDialog&)>& act) {
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    act(dialog);
    return Press(dialog, button);
  });
  return component.Execute();
}

struct Opened {
  explicit Opened(const char* caption) {
    window.setWindowTitle(QLatin1StringView(caption));
    window.resize(80, 50);
    window.show();
  }
  QWidget window;
};
QStringList Captions(const QDialog& dialog) {
  QStringList captions;
  const auto& list = In<QListWidget>(dialog, "windows");
  for (int i = 0; i < list.count(); ++i) captions << list.item(i)->text();
  return captions;
}
}  // namespace

// --- Windows

TEST(WindowListDialog, ListsTheWindowsThatAreShown) {
  Opened zoo("Zoo"), ants("Ants"), untitled(""), hidden("Hidden");
  hidden.window.hide();
  QWidget hint(nullptr, Qt::ToolTip);
  hint.setWindowTitle(QStringLiteral("Hint"));
  hint.show();
  TVRXWindowListDlg dlg(nullptr);
  const auto listed = [&] {
    QStringList captions;
    Answered(dlg, 0, [&](QDialog& dialog) { captions = Captions(dialog); });
    return captions.join(u',').toStdString();
  };
  EXPECT_EQ(listed(), "Zoo,Ants");
  dlg.Set(TVRXWindowListDlg::Sorted, true);
  EXPECT_EQ(listed(), "Ants,Zoo");
  dlg.Set(TVRXWindowListDlg::ShowHidden, true);
  EXPECT_EQ(listed(), "Ants,Hidden,Zoo");
}

TEST(WindowListDialog, TheOneThatIsPickedComesToTheFront) {
  Opened zoo("Zoo"), ants("Ants");
  zoo.window.activateWindow();
  TVRXWindowListDlg dlg(nullptr);
  const auto pickAnts = [](QDialog& dialog) { In<QListWidget>(dialog, "windows").setCurrentRow(1); };
  EXPECT_FALSE(Executed(dlg, Cancel, pickAnts));
  EXPECT_EQ(dlg.Picked(), QString());
  EXPECT_NE(QGuiApplication::focusWindow(), ants.window.windowHandle());
  ants.window.showMinimized();
  EXPECT_TRUE(Executed(dlg, Ok, pickAnts));
  ASSERT_EQ(dlg.Picked(), QStringLiteral("Ants"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return ants.window.isActiveWindow(); }, WaitLimit));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !ants.window.isMinimized(); }, WaitLimit));
}

TEST(WindowListDialog, ADoubleClickPicks) {
  Opened zoo("Zoo"), ants("Ants");
  TVRXWindowListDlg dlg(nullptr);
  const TVRXDialogAnswers answers([&](QDialog& dialog) {
    dialog.show();
    auto& list = In<QListWidget>(dialog, "windows");
    const QPoint at = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    EXPECT_FALSE(dialog.isVisible());
    return dialog.result();
  });
  EXPECT_TRUE(dlg.Execute());
  EXPECT_EQ(dlg.Picked(), QStringLiteral("Ants"));
}

namespace {
class Stubborn : public QWidget {
 public:
  Stubborn() {
    setWindowTitle(QStringLiteral("Stubborn"));
    show();
  }
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};
}  // namespace

TEST(WindowListDialog, ClosesWindowsThatLetItButNoneInAPreview) {
  Opened zoo("Zoo"), ants("Ants");
  Stubborn stubborn;
  TVRXWindowListDlg dlg(nullptr);
  const auto closeAll = [](QDialog& dialog) {
    for (int row = 2; row >= 0; --row) {
      In<QListWidget>(dialog, "windows").setCurrentRow(row);
      In<QPushButton>(dialog, "close").click();
    }
    return 0;
  };
  {
    const TVRXDialogAnswers answers([&](QDialog& dialog) {
      closeAll(dialog);
      EXPECT_EQ(Captions(dialog), QStringList());
      EXPECT_FALSE(In<QPushButton>(dialog, "close").isEnabled());
      return 0;
    });
    dlg.Preview();
  }
  EXPECT_TRUE(zoo.window.isVisible());
  Answered(dlg, 0, [&](QDialog& dialog) {
    closeAll(dialog);
    EXPECT_EQ(Captions(dialog), QStringList{QStringLiteral("Stubborn")});
  });
  EXPECT_FALSE(zoo.window.isVisible());
  EXPECT_FALSE(ants.window.isVisible());
  EXPECT_TRUE(stubborn.isVisible());
  stubborn.hide();
  ScriptedPrompts prompts;
  EXPECT_FALSE(Executed(dlg, Ok, [](QDialog&) {}));
  EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("There is no window to go to. Press Cancel.")});
  dlg.Set(TVRXWindowListDlg::AllowClose, false);
  Answered(dlg, 0, [](QDialog& dialog) { EXPECT_THROW(In<QPushButton>(dialog, "close"), std::exception); });
}

TEST(WindowListDialog, WhatIsClosedIsInNobodysPlace) {
  Opened zoo("Zoo"), ants("Ants"), bees("Bees");
  TVRXWindowListDlg dlg(nullptr);
  EXPECT_TRUE(Executed(dlg, Ok, [](QDialog& dialog) {
    In<QListWidget>(dialog, "windows").setCurrentRow(0);
    In<QPushButton>(dialog, "close").click();
    In<QListWidget>(dialog, "windows").setCurrentRow(1);
  }));
  ASSERT_EQ(dlg.Picked(), QStringLiteral("Bees"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return bees.window.isActiveWindow(); }, WaitLimit));
}

// --- Folders

namespace {
class FolderDialog : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QDir(root_.path()).mkpath(QStringLiteral("in/deep")));
    QFile file(root_.filePath(QStringLiteral("in/note.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    dlg_.Set(TVRXFormFolderDialog::Folder, root_.path());
  }
  QTemporaryDir root_;
  ScriptedPrompts prompts_;
  TVRXFormFolderDialog dlg_{nullptr};
};
QModelIndex Row(QDialog& dialog, const QString& path) {
  return qobject_cast<QFileSystemModel*>(In<QTreeView>(dialog, "tree").model())->index(path);
}
}  // namespace

TEST_F(FolderDialog, KeepsTheFolderThatIsPickedWhenItIsConfirmed) {
  const QString in = root_.filePath(QStringLiteral("in"));
  const auto pick = [&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Browse for Folder"));
    In<QTreeView>(dialog, "tree").setCurrentIndex(Row(dialog, in));
    EXPECT_EQ(In<QLineEdit>(dialog, "directory").text(), in);
  };
  EXPECT_FALSE(Executed(dlg_, Cancel, pick));
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), root_.path());
  EXPECT_TRUE(Executed(dlg_, Ok, pick));
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), in);
  EXPECT_TRUE(prompts_.warned.isEmpty());
}

TEST_F(FolderDialog, AFolderMustExistUnlessItNeedNot) {
  const QString none = root_.filePath(QStringLiteral("none"));
  const auto type = [&](const QString& text) {
    return [=](QDialog& dialog) { In<QLineEdit>(dialog, "directory").setText(text); };
  };
  EXPECT_FALSE(Executed(dlg_, Ok, type(none)));
  ASSERT_EQ(prompts_.warned.size(), 1);
  EXPECT_TRUE(prompts_.warned[0].contains(none)) << prompts_.warned[0].toStdString();
  EXPECT_FALSE(Executed(dlg_, Ok, type(root_.filePath(QStringLiteral("in/note.txt")))));
  EXPECT_FALSE(Executed(dlg_, Ok, type(QString())));
  EXPECT_EQ(prompts_.warned.size(), 3);
  dlg_.Set(TVRXFormFolderDialog::Options, {TVRXFolderOption::foEditLine});
  EXPECT_TRUE(Executed(dlg_, Ok, type(none)));
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), none);
}

TEST_F(FolderDialog, NothingOutsideOfTheRootCanBePicked) {
  dlg_.Set(TVRXFormFolderDialog::RootFolder, root_.filePath(QStringLiteral("in")));
  const auto type = [&](const QString& text) {
    return [=](QDialog& dialog) { In<QLineEdit>(dialog, "directory").setText(text); };
  };
  EXPECT_FALSE(Executed(dlg_, Ok, type(root_.path())));
  ASSERT_EQ(prompts_.warned.size(), 1);
  EXPECT_TRUE(prompts_.warned[0].contains(QStringLiteral("not inside of")));
  EXPECT_TRUE(Executed(dlg_, Ok, type(root_.filePath(QStringLiteral("in")))));
  EXPECT_TRUE(Executed(dlg_, Ok, [&](QDialog& dialog) {
    const auto& tree = In<QTreeView>(dialog, "tree");
    EXPECT_EQ(tree.rootIndex(), Row(dialog, root_.filePath(QStringLiteral("in"))));
    In<QLineEdit>(dialog, "directory").setText(root_.filePath(QStringLiteral("in/deep")));
  }));
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), root_.filePath(QStringLiteral("in/deep")));
}

TEST_F(FolderDialog, MakesFoldersWithNamesThatNobodyHas) {
  for (const char* name : {"New Folder", "New Folder 2"})
    EXPECT_TRUE(Executed(dlg_, Ok, [&](QDialog& dialog) {
      In<QLineEdit>(dialog, "directory").setText(root_.path());
      In<QPushButton>(dialog, "newFolder").click();
    })) << name;
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), root_.filePath(QStringLiteral("New Folder 2")));
  EXPECT_TRUE(QFileInfo(root_.filePath(QStringLiteral("New Folder"))).isDir());
  EXPECT_TRUE(QFileInfo(root_.filePath(QStringLiteral("New Folder 2"))).isDir());
  Answered(dlg_, 0, [&](QDialog& dialog) {
    In<QLineEdit>(dialog, "directory").setText(root_.filePath(QStringLiteral("none")));
    In<QPushButton>(dialog, "newFolder").click();
  });
  EXPECT_EQ(prompts_.warned.size(), 1);
  {
    const TVRXDialogAnswers answers([](QDialog& dialog) {
      const auto& make = In<QPushButton>(dialog, "newFolder");
      EXPECT_FALSE(make.isEnabled()) << "a preview makes nothing";
      EXPECT_EQ(make.toolTip(), QStringLiteral("A preview makes no folders."));
      return 0;
    });
    dlg_.Preview();
  }
  dlg_.Set(TVRXFormFolderDialog::Options, TVRXFolderOptions());
  Answered(dlg_, 0, [](QDialog& dialog) {
    EXPECT_THROW(In<QPushButton>(dialog, "newFolder"), std::exception);
    dialog.show();
    EXPECT_FALSE(In<QLineEdit>(dialog, "directory").isVisible());
  });
}

TEST_F(FolderDialog, AFileThatIsShownStandsForItsFolder) {
  using enum TVRXFolderOption;
  dlg_.Set(TVRXFormFolderDialog::Options, {foEditLine, foShowFiles, foShowHidden});
  Answered(dlg_, 1, [&](QDialog& dialog) {
    In<QTreeView>(dialog, "tree").setCurrentIndex(Row(dialog, root_.filePath(QStringLiteral("in/note.txt"))));
  });
  EXPECT_EQ(dlg_.Get(TVRXFormFolderDialog::Folder), root_.filePath(QStringLiteral("in")));
  const auto filter = [&] {
    QDir::Filters now;
    Answered(dlg_, 0, [&](QDialog& dialog) {
      now = qobject_cast<QFileSystemModel*>(In<QTreeView>(dialog, "tree").model())->filter();
    });
    return now;
  };
  EXPECT_TRUE(filter() & QDir::Hidden);
  EXPECT_TRUE(filter() & QDir::Files);
  dlg_.Set(TVRXFormFolderDialog::Options, TVRXFolderOptions());
  EXPECT_FALSE(filter() & QDir::Hidden);
  EXPECT_FALSE(filter() & QDir::Files);
}

// --- Icons

namespace {
// An icon file with pictures of these sizes and colours.
QByteArray IconFile(const QList<QPair<QSize, QColor>>& pictures) {
  QByteArray head(6, '\0'), body;
  qToLittleEndian(quint16{1}, head.data() + 2);
  qToLittleEndian(static_cast<quint16>(pictures.size()), head.data() + 4);
  const auto first = static_cast<quint32>(6 + 16 * pictures.size());
  for (const auto& [size, color] : pictures) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    QByteArray entry(16, '\0');
    entry[0] = static_cast<char>(size.width());
    entry[1] = static_cast<char>(size.height());
    qToLittleEndian(quint16{1}, entry.data() + 4);
    qToLittleEndian(quint16{32}, entry.data() + 6);
    qToLittleEndian(static_cast<quint32>(png.size()), entry.data() + 8);
    qToLittleEndian(first + static_cast<quint32>(body.size()), entry.data() + 12);
    head += entry;
    body += png;
  }
  return head + body;
}

class IconDialog : public testing::Test {
 protected:
  void SetUp() override {
    icons_ = Write("some.ico", IconFile({{{16, 20}, QColor(200, 10, 20, 255)},
                                         {{33, 24}, QColor(10, 220, 30, 130)},
                                         {{48, 40}, QColor(10, 20, 240, 255)}}));
  }
  QString Write(const char* name, const QByteArray& bytes) {
    QFile file(folder_.filePath(QLatin1StringView(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  QTemporaryDir folder_;
  ScriptedPrompts prompts_;
  QString icons_;
  TVRXFormChangeIconDialog dlg_{nullptr};
};
}  // namespace

TEST_F(IconDialog, ShowsAllIconsOfAFileAndKeepsTheOneThatIsPicked) {
  dlg_.Set(TVRXFormChangeIconDialog::FileName, icons_);
  dlg_.Set(TVRXFormChangeIconDialog::IconIndex, 1);
  EXPECT_EQ(dlg_.Icon().size(), QSize(33, 24));
  EXPECT_EQ(dlg_.Icon().pixelColor(3, 4).alpha(), 130);
  const auto pick = [](QDialog& dialog) {
    auto& icons = In<QListWidget>(dialog, "icons");
    ASSERT_EQ(icons.count(), 3);
    EXPECT_EQ(icons.item(1)->text(), QStringLiteral("33 \u00D7 24"));
    EXPECT_EQ(icons.currentRow(), 1);
    EXPECT_FALSE(icons.item(2)->icon().isNull());
    icons.setCurrentRow(2);
  };
  EXPECT_FALSE(Executed(dlg_, Cancel, pick));
  EXPECT_EQ(dlg_.Get(TVRXFormChangeIconDialog::IconIndex), 1);
  EXPECT_TRUE(Executed(dlg_, Ok, pick));
  EXPECT_EQ(dlg_.Get(TVRXFormChangeIconDialog::IconIndex), 2);
  EXPECT_EQ(dlg_.Icon().pixelColor(3, 4), QColor(10, 20, 240));
}

TEST_F(IconDialog, AnotherFileIsBrowsedForOrTyped) {
  QImage picture(30, 22, QImage::Format_ARGB32);
  picture.fill(QColor(1, 2, 3, 100));
  const QString png = folder_.filePath(QStringLiteral("one.png"));
  ASSERT_TRUE(picture.save(png));
  dlg_.Set(TVRXFormChangeIconDialog::FileName, icons_);
  dlg_.Set(TVRXFormChangeIconDialog::IconIndex, 2);
  EXPECT_TRUE(Executed(dlg_, Ok, [&](QDialog& dialog) {
    In<QPushButton>(dialog, "browse").click();
    EXPECT_EQ(In<QLineEdit>(dialog, "file").text(), icons_) << "nothing was answered";
    prompts_.file = png;
    In<QPushButton>(dialog, "browse").click();
    EXPECT_EQ(In<QListWidget>(dialog, "icons").count(), 1);
  }));
  EXPECT_EQ(dlg_.Get(TVRXFormChangeIconDialog::FileName), png);
  EXPECT_EQ(dlg_.Get(TVRXFormChangeIconDialog::IconIndex), 0);
  EXPECT_EQ(dlg_.Icon().size(), QSize(30, 22));
}

TEST_F(IconDialog, AFileWithoutIconsIsNotTaken) {
  const QString text = Write("note.txt", "no icon"),
                cut = Write("cut.ico", IconFile({{{9, 8}, Qt::red}}).left(40));
  dlg_.Set(TVRXFormChangeIconDialog::FileName, icons_);
  for (const QString& name : {text, cut, folder_.filePath(QStringLiteral("none.ico")), QString()}) {
    prompts_.warned.clear();
    EXPECT_FALSE(Executed(dlg_, Ok, [&](QDialog& dialog) {
      dialog.show();
      In<QLineEdit>(dialog, "file").setText(name);
      const auto& problem = In<QLabel>(dialog, "problem");
      EXPECT_EQ(problem.isVisible(), !name.isEmpty());
      EXPECT_TRUE(problem.text().contains(name)) << problem.text().toStdString();
      EXPECT_EQ(In<QListWidget>(dialog, "icons").count(), 0);
    })) << name.toStdString();
    // What the dialog shows already is not told once more.
    EXPECT_EQ(prompts_.warned.size(), name.isEmpty() ? 1 : 0) << prompts_.warned.join(u'|').toStdString();
  }
  EXPECT_EQ(dlg_.Get(TVRXFormChangeIconDialog::FileName), icons_);
  dlg_.Set(TVRXFormChangeIconDialog::FileName, text);
  EXPECT_THROW(dlg_.Icon(), Exception);
  dlg_.Set(TVRXFormChangeIconDialog::FileName, icons_);
  dlg_.Set(TVRXFormChangeIconDialog::IconIndex, 7);
  EXPECT_TRUE(dlg_.Icon().isNull());
  Answered(dlg_, 0, [](QDialog& dialog) { EXPECT_EQ(In<QListWidget>(dialog, "icons").currentRow(), 0); });
}

// --- Objects

TEST(ObjectDialog, MakesANewOneOfAKind) {
  TVRXFormInsertObjectDialog dlg(nullptr);
  dlg.Get(TVRXFormInsertObjectDialog::ObjectTypes)
      ->SetLines({QStringLiteral("Chart"), QStringLiteral("Sheet"), QStringLiteral("Text")});
  dlg.Set(TVRXFormInsertObjectDialog::ObjectType, QStringLiteral("Sheet"));
  const auto pick = [](QDialog& dialog) {
    auto& types = In<QListWidget>(dialog, "types");
    EXPECT_EQ(types.currentItem()->text(), QStringLiteral("Sheet"));
    types.setCurrentRow(2);
    In<QLineEdit>(dialog, "file").setText(QStringLiteral("left"));
    In<QCheckBox>(dialog, "asIcon").setChecked(true);
  };
  EXPECT_FALSE(Executed(dlg, Cancel, pick));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::ObjectType), QStringLiteral("Sheet"));
  EXPECT_FALSE(dlg.Get(TVRXFormInsertObjectDialog::AsIcon));
  EXPECT_TRUE(Executed(dlg, Ok, pick));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::ObjectType), QStringLiteral("Text"));
  EXPECT_TRUE(dlg.Get(TVRXFormInsertObjectDialog::AsIcon));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::FileName), QString()) << "it was not asked for";
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::Source), TVRXObjectSource::osNew);
}

TEST(ObjectDialog, TakesAFileThatIsThere) {
  const QTemporaryDir folder;
  const QString name = folder.filePath(QStringLiteral("sheet.ods"));
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ScriptedPrompts prompts;
  TVRXFormInsertObjectDialog dlg(nullptr);
  dlg.Set(TVRXFormInsertObjectDialog::ObjectType, QStringLiteral("before"));
  const auto pick = [&](QDialog& dialog) {
    dialog.show();
    EXPECT_FALSE(In<QLineEdit>(dialog, "file").isVisible());
    In<QRadioButton>(dialog, "fromFile").setChecked(true);
    EXPECT_TRUE(In<QLineEdit>(dialog, "file").isVisible());
    EXPECT_FALSE(In<QListWidget>(dialog, "types").isVisible());
    In<QPushButton>(dialog, "browse").click();
    In<QCheckBox>(dialog, "link").setChecked(true);
  };
  EXPECT_FALSE(Executed(dlg, Ok, pick));
  prompts.file = folder.filePath(QStringLiteral("none"));
  EXPECT_FALSE(Executed(dlg, Ok, pick));
  ASSERT_EQ(prompts.warned.size(), 2);
  EXPECT_TRUE(prompts.warned[1].contains(prompts.file));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::Source), TVRXObjectSource::osNew);
  prompts.file = name;
  EXPECT_TRUE(Executed(dlg, Ok, pick));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::Source), TVRXObjectSource::osFile);
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::FileName), name);
  EXPECT_TRUE(dlg.Get(TVRXFormInsertObjectDialog::Link));
  EXPECT_EQ(dlg.Get(TVRXFormInsertObjectDialog::ObjectType), QStringLiteral("before"));
  Answered(dlg, 0, [&](QDialog& dialog) {
    EXPECT_TRUE(In<QRadioButton>(dialog, "fromFile").isChecked());
    EXPECT_EQ(In<QLineEdit>(dialog, "file").text(), name);
    EXPECT_TRUE(In<QCheckBox>(dialog, "link").isChecked());
  });
}

TEST(ObjectDialog, AsksForNoMoreThanItsOptions) {
  using enum TVRXInsertObjectOption;
  TVRXFormInsertObjectDialog dlg(nullptr);
  const auto seen = [&](TVRXInsertObjectOptions options) {
    std::string names;
    dlg.Set(TVRXFormInsertObjectDialog::Options, options);
    Answered(dlg, 0, [&](QDialog& dialog) {
      dialog.show();
      for (const char* name : {"create", "fromFile", "types", "file", "link", "asIcon"})
        if (In<QWidget>(dialog, name).isVisible()) names += std::string(name) + ' ';
    });
    return names;
  };
  EXPECT_EQ(seen({ioNew, ioFile, ioLink, ioAsIcon}), "create fromFile types asIcon ");
  EXPECT_EQ(seen({ioNew}), "types ");
  EXPECT_EQ(seen({ioFile}), "file ");
  EXPECT_EQ(seen({ioFile, ioLink}), "file link ");
  EXPECT_EQ(seen({}), "types ");
}

TEST(ObjectDialog, OffersTheDocumentsOfTheSystem) {
  TVRXFormInsertObjectDialog dlg(nullptr);
  const QStringList kinds = dlg.Kinds();
  EXPECT_TRUE(kinds.contains(QMimeDatabase().mimeTypeForName(QStringLiteral("application/pdf")).comment()));
  EXPECT_FALSE(kinds.contains(QMimeDatabase().mimeTypeForName(QStringLiteral("inode/directory")).comment()));
  EXPECT_EQ(kinds.size(), QSet<QString>(kinds.begin(), kinds.end()).size());
}
