// Builds the region mask of a shaped window or button from a picture and the colours that are to be
// transparent in it.
#pragma once
#include "dclstd/RowDialog.h"
#include "library/pixels/RegionFromBitmap.h"
#include "library/values/RegionMask.h"
#include "library_design/PictureView.h"
#include "library_design/ProgressBar.h"
#include "package/dialogs/RegionZoomBox.h"

class QListWidget;
class QScrollArea;
class QTabWidget;

class TVRXfrmRegionFromBMPdlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXfrmRegionFromBMPdlg(QWidget* owner);

  std::unique_ptr<TVRXRegionMask> mask = std::make_unique<TVRXRegionMask>();
  bool buttonFace = false;
  // For a button's mask: its looks are offered instead of border styles.
  void SetButtonFace();

  bool Confirmed() override;
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
  // A result that is older than the settings is confirmed by the button itself only.
  bool ReturnConfirms() const override { return !ResultIsOlder(); }
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
  Settings made_;              // of the result
  bool otherPicture_ = false;  // not the one that the result was made from
  bool bordered_ = false;      // the picture comes from the value, with a border painted on it
  bool building_ = false, closed_ = false;
};
