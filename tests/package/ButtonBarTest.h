// What the tests of the editor of button bars share.
#pragma once
#include <QListWidget>

#include "package/component_editors/pVRXCEBars.h"
#include "package/dialogs/pVRXButtonBarEditorDlg.h"
#include "tests/package/ListEditorTest.h"

// A form with a bar of two sections and an image list.
class ButtonBars : public ListEditors {
 protected:
  using B = TVRXButtonBar;
  void SetUp() override {
    ListEditors::SetUp();
    session = FormSession::FromBytes(R"(object Form1: TForm1
  Left = 0
  Top = 0
  Width = 400
  Height = 400
  object Bar: TVRXButtonBar
    Left = 8
    Top = 8
    Width = 130
    Height = 300
    Align = alLeft
    Sections = <
      item
        Caption = 'Mail'
        Items = <
          item
            Caption = 'In'
          end
          item
            Caption = 'Out'
          end>
      end
      item
        Caption = 'Notes'
        ListIndex = 1
      end>
  end
  object Pictures: TImageList
  end
end
)",
                                     {}, registry);
    auto* pictures = As<TImageList>(session->GetComponent(QStringLiteral("Pictures")));
    QList<QImage> images;
    for (int i = 0; i < 30; ++i) {
      QImage image(16, 16, QImage::Format_ARGB32);
      image.fill(QColor::fromHsv(i * 10, 200, 200));
      images << image;
    }
    session->Run(QStringLiteral("pictures"), {pictures}, [&] { pictures->SetPictures(images); });
    bytes = session->Bytes();
  }
  B& Bar() { return *As<B>(session->GetComponent(QStringLiteral("Bar"))); }
  TImageList& Pictures() { return *As<TImageList>(session->GetComponent(QStringLiteral("Pictures"))); }
  void RunVerb(int index, const std::function<void(TVRXButtonBarEditorDlg&)>& act = {}) {
    if (act) modal::NextOf<TVRXButtonBarEditorDlg>([&](TVRXButtonBarEditorDlg& dialog) { act(dialog); });
    const auto editor = registry.GetComponentEditor(&Bar(), session.get());
    session->Run(QStringLiteral("a verb"), {&Bar()}, [&] { editor->ExecuteVerb(index); });
  }
  static QString CaptionOf(const B& bar, int section) {
    return bar.Sections()->At(section).Get(TVRXBarSection::Caption);
  }
  static void Click(TVRXButtonBarEditorDlg& dialog, QPoint place) {
    QTest::mouseClick(dialog.view, Qt::LeftButton, {}, place);
  }
  static void DoubleClick(QListWidget& box, int row) {
    box.scrollToItem(box.item(row));
    const QPoint place = box.visualItemRect(box.item(row)).center();
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(box.viewport(), Qt::LeftButton, {}, place);
  }
  // With the left button, a little at first.
  static void Drag(TVRXButtonBarEditorDlg& dialog, QPoint from, QPoint to, bool escape = false) {
    QTest::mousePress(dialog.view, Qt::LeftButton, {}, from);
    for (const QPoint at : {from + QPoint(0, 2), to}) {
      QMouseEvent move(QEvent::MouseMove, at, dialog.view->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
      QCoreApplication::sendEvent(dialog.view, &move);
    }
    if (escape) QTest::keyClick(dialog.view, Qt::Key_Escape);
    QTest::mouseRelease(dialog.view, Qt::LeftButton, {}, to);
  }
  static std::string ItemsOf(const B& bar) {
    QStringList names;
    for (int i = 0; i < bar.Current()->ItemCount(); ++i)
      names << bar.Current()->Items()->At(i).Get(TVRXBarItem::Caption);
    return names.join(u'|').toStdString();
  }
  // Where the bar has an arrow to scroll down with.
  static QPoint ScrollArrow(const B& bar) {
    for (int y = 0; y < bar.Height(); ++y)
      if (bar.PlaceAt({bar.Width() - 10, y}).What == TVRXBarPlace::ScrollDown)
        return QPoint(bar.Width() - 10, y + 3);
    return QPoint();
  }
  std::unique_ptr<FormSession> session;
  QByteArray bytes;
};
