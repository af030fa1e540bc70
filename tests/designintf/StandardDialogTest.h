// What the tests of the standard types' dialogs share: answers for the person, files, editors of properties.
#pragma once
#include "dclstd/StandardEditors.h"
#include "designintf/CustomColors.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Fields.h"
#include "tests/support/Modal.h"
#include "tests/support/Prompted.h"
#include "vcl/Theme.h"

// Not square, and not opaque: a ring on nothing.
inline QImage Ring(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter p(&image);
  p.setPen(QPen(color, 2));
  p.drawRect(2, 2, width - 5, height - 5);
  return image;
}
// Opaque, with a ground of fuchsia.
inline QImage OnFuchsia(int width, int height, QColor color) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(QColor(255, 0, 255));
  QPainter p(&image);
  p.fillRect(1, 1, width / 2, height / 2, color);
  return image;
}

class Answers : public ScriptedPrompts {
 public:
  bool Confirm(QWidget*, const QString&, const QString& text) override {
    questions << text;
    return confirm;
  }
  QString SaveFileName(QWidget*, const QString&, const QString&, const QString&) override { return saveAs; }
  QStringList OpenFileNames(QWidget*, const QString&, const QString&, const QString&) override {
    return files;
  }
  QStringList questions, files;
  bool confirm = true;
  QString saveAs;
};

class StandardDialogs : public testing::Test {
 protected:
  StandardDialogs() { RegisterStandard(registry); }
  void SetUp() override { SaveIDECustomColors({}); }
  void TearDown() override { ApplyTheme(TTheme::Light); }
  std::unique_ptr<TPropertyEditor> Of(std::vector<TPersistent*> instances, const char* name) {
    TInstProps props;
    for (TPersistent* p : instances) props.push_back({p, &p->ClassType().GetProp(name)});
    return registry.CreatePropertyEditor(&designer, std::move(props));
  }
  QString FileOf(const QImage& image, const char* name) {
    const QString file = folder.filePath(QString::fromLatin1(name));
    EXPECT_TRUE(image.save(file));
    return file;
  }
  QString FileWith(const QByteArray& bytes, const char* name) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  static QByteArray Read(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
  }
  DesignRegistry registry;
  FakeDesigner designer;
  Answers prompts;
  QTemporaryDir folder;
};
inline void Click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
