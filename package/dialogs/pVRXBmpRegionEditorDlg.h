// Builds the region mask of a shaped window or button from a picture and the colours that are to be
// transparent in it.
#pragma once
#include <array>

#include "dclstd/ModalDialog.h"
#include "library/pixels/RegionFromBitmap.h"
#include "library/values/RegionMask.h"
#include "library_design/PictureView.h"
#include "library_design/ProgressBar.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QScrollArea;
class QTabWidget;

// A square part of a picture, enlarged.
class ZoomBox : public QWidget {
  Q_OBJECT
 public:
  static constexpr int Cells = 20;
  explicit ZoomBox(QWidget* parent);
  // Shows the pixels from `origin` on; where the picture has none, they are clInvalid.
  void ShowPart(const TBitmap& picture, QPoint origin);
  // Shows nothing.
  void Clear();
  // The colour at a place; nothing before a part is shown.
  std::optional<TColor> ColorAt(QPoint place) const;
  QSize sizeHint() const override { return {Cells * 8 + 1, Cells * 8 + 1}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void MouseDown(Qt::MouseButton button, QPoint place);
  void MouseMove(QPoint place);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  QRect CellRect(int column, int row) const;
  std::array<std::array<TColor, Cells>, Cells> cells_{};  // [row][column]
  bool filled_ = false;
};

class TVRXfrmRegionFromBMPdlg : public ModalDialog {
  Q_OBJECT
 public:
  explicit TVRXfrmRegionFromBMPdlg(QWidget* owner);
  ~TVRXfrmRegionFromBMPdlg() override;

  std::unique_ptr<TVRXRegionMask> mask;
  bool buttonFace = false;
  // For a button's mask: its looks are offered instead of border styles.
  void SetButtonFace();

  void FormCreate();
  void LoadButtonClick();
  void Image1MouseDown(Qt::MouseButton button, QPoint pixel);
  void Image1MouseMove(QPoint pixel);
  void zoomMouseDown(Qt::MouseButton button, QPoint place);
  void zoomMouseMove(QPoint place);
  void cbChange();
  void ccbChange();
  void colbChange();
  void BuildButtonClick();

  QTabWidget* pages;
  QPushButton* LoadButton;
  QLabel* DimLabel;
  QScrollArea* VRXScrollBox1;
  PictureView* Image1;
  ZoomBox* zoom;
  QLabel* ViewLabel;
  QLabel* cc;
  QListWidget* cl;
  QComboBox *cb, *cb2;
  QCheckBox* ccb;
  QComboBox* colb;
  QPushButton* BuildButton;
  TVRXProgressBar* Progress;
  PictureView* Result;
  QLabel* note;  // how the result stands to what is set; quiet
  QPushButton* OKButton;
  QPushButton* CancelButton;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void done(int result) override;
  void LoadControls() override;

 private:
  QWidget* BuildImagePage();
  QWidget* BuildBorderPage();
  void ShowOrigin();
  void ShowPicture(const TBitmap& picture);
  void Pick(TColor color);
  void ShowColor(std::optional<TColor> color);
  void ShowResult();
  void ShowNote();
  void RemoveSelected();
  TRegionBuild Build();
  // What a result depends on.
  struct Settings {
    TBitmap picture;
    QStringList colors;  // sorted
    int style = 0;
  };
  QStringList Colors() const;
  int Style() const;
  void NoteSettings();
  // Whether OK would take a result that other settings led to.
  bool ResultIsOlder() const;
  QLabel* styleLabel_;
  Settings made_;              // of the result
  bool otherPicture_ = false;  // not the one that the result was made from
  bool bordered_ = false;      // the picture comes from the value, with a border painted on it
  bool building_ = false, closed_ = false;
};
