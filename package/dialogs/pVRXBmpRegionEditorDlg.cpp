#include "package/dialogs/pVRXBmpRegionEditorDlg.h"

#include <QtWidgets>

#include "dclstd/EditorDialog.h"
#include "library/pixels/RegionOrigin.h"
#include "library_design/Encoding.h"
#include "library_design/Named.h"
#include "library_design/PictureDialog.h"
#include "library_design/pVRXCommon.h"
#include "vcl/Prompts.h"

namespace {
QColor Readable(const QColor& ground) { return qGray(ground.rgb()) < 128 ? Qt::white : Qt::black; }

// An entry is drawn in the colour it names.
class ColorItems : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  static constexpr int Height = 10;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {option.rect.width(), Height};
  }
  void paint(QPainter* p, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QString text = index.data().toString();
    const QColor color = ToQColor(StringToColor(text));
    p->save();
    p->fillRect(option.rect, color);
    QFont font = option.font;
    font.setPixelSize(9);
    p->setFont(font);
    p->setPen(Readable(color));
    p->drawText(option.rect, Qt::AlignCenter, text);
    if (option.state & QStyle::State_Selected) {
      p->setPen(QPen(option.palette.color(QPalette::Highlight), 2));
      p->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    p->restore();
  }
};

// Ends a build at its next point when the dialog has been closed.
struct BuildEnded {};
class BuildProgress : public RunProgress {
 public:
  BuildProgress(TVRXProgressBar& bar, const bool& closed) : RunProgress(bar), closed_(closed) {}
  void ProcessMessages(std::int64_t times) override {
    RunProgress::ProcessMessages(times);
    if (closed_) throw BuildEnded();
  }

 private:
  const bool& closed_;
};
}  // namespace

using D = TVRXfrmRegionFromBMPdlg;

TVRXfrmRegionFromBMPdlg::TVRXfrmRegionFromBMPdlg(QWidget* owner)
    : RowDialog(QStringLiteral("Region From Bitmap Editor"), owner) {
  setObjectName(QStringLiteral("VRXfrmRegionFromBMPdlg"));
  Edits(*mask);
  pages = new QTabWidget(this);
  pages->setObjectName(QStringLiteral("pages"));
  pages->addTab(BuildImagePage(), QStringLiteral("Image/Colors"));
  pages->addTab(BuildBorderPage(), QStringLiteral("Border/Build"));
  OkButton(OKButton, "OKButton", "Ok");
  RowDialog::CancelButton(CancelButton, "CancelButton");
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  note = QuietLine(this, "note");
  buttons->addWidget(note, 1);
  buttons->addWidget(OKButton);
  buttons->addWidget(CancelButton);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(12, 12, 12, 12);
  all->setSpacing(12);
  all->addWidget(pages, 1);
  all->addLayout(buttons);
  BuildButton->setEnabled(false);
  OKButton->setEnabled(false);
  OwnColors({Image1, Result, zoom, cc});
  VRXSetThemeMode(*this, 1);
  SetTabSequence();
  FormCreate();
  ShowColor(std::nullopt);
  setSizeGripEnabled(true);
  resize(QSize(600, 440).expandedTo(minimumSizeHint()));
}

QWidget* TVRXfrmRegionFromBMPdlg::BuildImagePage() {
  auto* page = new QWidget(this);
  Button(LoadButton, "LoadButton", "&Load", &D::LoadButtonClick, "Load an image");
  DimLabel = Named(new QLabel(QStringLiteral("Bitmap size:"), page), "DimLabel", "");
  Image1 = Named(new PictureView(page), "Image1", "Left mouse btn -> select color\nRight mouse btn -> zoom");
  VRXScrollBox1 = ScrollBoxOf(Image1, page);
  VRXScrollBox1->setObjectName(QStringLiteral("VRXScrollBox1"));
  VRXScrollBox1->setFrameShape(QFrame::StyledPanel);
  Follows(VRXScrollBox1);
  zoom = Named(new ZoomBox(page), "zoom", "Left mouse btn -> select color");
  ViewLabel = Named(new QLabel(page), "ViewLabel", "");
  cc = Named(new QLabel(page), "cc", "");
  cc->setAutoFillBackground(true);
  cc->setAlignment(Qt::AlignCenter);
  cc->setFrameShape(QFrame::StyledPanel);
  cc->setMinimumHeight(std::max(22, cc->sizeHint().height()));
  cl = Named(new QListWidget(page), "cl",
             "Colors which will be excluded from the visible region\nRemove by pressing delete");
  cl->setItemDelegate(new ColorItems(cl));
  cl->setUniformItemSizes(true);
  cl->installEventFilter(this);
  cl->setFixedWidth(zoom->sizeHint().width());
  Follows(cl);

  auto* top = new QHBoxLayout;
  top->setSpacing(8);
  top->addWidget(LoadButton);
  top->addWidget(DimLabel, 1);
  auto* zoomTitle = new QHBoxLayout;
  auto* zoomLabel = new QLabel(QStringLiteral("Zoom"), page);
  zoomLabel->setBuddy(zoom);
  zoomTitle->addWidget(zoomLabel, 1);
  zoomTitle->addWidget(ViewLabel);
  auto* side = new QVBoxLayout;
  side->setSpacing(6);
  side->addLayout(zoomTitle);
  side->addWidget(zoom);
  side->addWidget(cc);
  auto* listLabel = new QLabel(QStringLiteral("Colors to be transparent"), page);
  listLabel->setBuddy(cl);
  side->addWidget(listLabel);
  side->addWidget(cl, 1);
  auto* grid = new QGridLayout(page);
  grid->setContentsMargins(12, 12, 12, 12);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(8);
  grid->addLayout(top, 0, 0);
  grid->addWidget(VRXScrollBox1, 1, 0);
  grid->addLayout(side, 0, 1, 2, 1);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(1, 1);
  connect(Image1, &PictureView::MouseDown, this,
          [this](Qt::MouseButton b, QPoint p) { Guarded([&] { Image1MouseDown(b, p); }); });
  connect(Image1, &PictureView::MouseMove, this, [this](QPoint p) { Image1MouseMove(p); });
  connect(zoom, &ZoomBox::MouseDown, this,
          [this](Qt::MouseButton b, QPoint p) { Guarded([&] { zoomMouseDown(b, p); }); });
  connect(zoom, &ZoomBox::MouseMove, this, [this](QPoint p) { zoomMouseMove(p); });
  return page;
}

QWidget* TVRXfrmRegionFromBMPdlg::BuildBorderPage() {
  auto* page = new QWidget(this);
  auto* row = new QHBoxLayout(page);
  row->setContentsMargins(12, 12, 12, 12);
  row->setSpacing(12);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  row->addLayout(grid);
  RowsInto(*grid);
  Row(cb, "cb", "", "BorderStyle:", "Select a border style")
      .Items({QStringLiteral("None"), QStringLiteral("Single"), QStringLiteral("Raised"),
              QStringLiteral("Lowered"), QStringLiteral("Single-Raised"), QStringLiteral("Single-Lowered")})
      .Changes(&D::cbChange);
  Row(cb2, "cb2", "", "BorderStyle:", "Select a border style")
      .Items({QStringLiteral("Win31"), QStringLiteral("Win40"), QStringLiteral("Simple")})
      .Changes(&D::cbChange);
  ShowRow(cb2, false);
  Row(colb, "colb", "ColorDepth", "Colordepth:").Changes(&D::colbChange);
  Row(ccb, "ccb", "Compress", "Compress image").Changes(&D::ccbChange);
  Button(BuildButton, "BuildButton", "&Build", &D::BuildButtonClick, "Build region and border bitmap");
  Wide({BuildButton});
  Progress = Named(new TVRXProgressBar(0, page), "Progress", "Shows build progress");
  // Its room stays when it is not there, so that nothing jumps.
  QSizePolicy keep = Progress->sizePolicy();
  keep.setRetainSizeWhenHidden(true);
  Progress->setSizePolicy(keep);
  Progress->hide();
  Wide({Progress});
  grid->setRowStretch(grid->rowCount(), 1);
  Result = Named(new PictureView(page), "Result", "");
  QScrollArea* resultBox = ScrollBoxOf(Result, page);
  resultBox->setObjectName(QStringLiteral("ResultBox"));
  resultBox->setFrameShape(QFrame::StyledPanel);
  Follows(resultBox);
  row->addWidget(resultBox, 1);
  return page;
}

void TVRXfrmRegionFromBMPdlg::SetButtonFace() {
  buttonFace = true;
  ShowRow(cb, false);
  ShowRow(cb2, true);
}

bool TVRXfrmRegionFromBMPdlg::Confirmed() { return Encoded(*mask); }

void TVRXfrmRegionFromBMPdlg::LoadControls() {
  RowDialog::LoadControls();
  if (Image1->Picture().Empty()) ShowOrigin();
  ShowResult();
  // What has been built before can be confirmed, with another depth or compression or as it is.
  OKButton->setEnabled(mask->HasRegion() || !mask->FullBorderPicture().isNull());
  NoteSettings();
}

// What the value still has of the picture and the settings it was built from. Without its colours a region
// can only be kept as it is.
void TVRXfrmRegionFromBMPdlg::ShowOrigin() {
  if (mask->FullBorderPicture().isNull()) return;
  ShowPicture(TBitmap::FromImage(mask->FullBorderPicture()));
  const TBitmap& picture = Image1->Picture();
  for (const TColor color : TransparentColorsOf(picture, mask->Region())) cl->addItem(ColorToString(color));
  if (buttonFace) {
    const TBitmap first = TBitmap::FromImage(mask->FullStatePicture(0));
    if (const auto look = ButtonLookOf(picture, first, mask->Region()))
      cb2->setCurrentIndex(static_cast<int>(*look));
  } else {
    const TRegionBorder border = BorderStyleOf(picture, mask->Region());
    cb->setCurrentIndex(static_cast<int>(border));
    bordered_ = border != TRegionBorder::None;
  }
}

void TVRXfrmRegionFromBMPdlg::ShowPicture(const TBitmap& picture) {
  Image1->SetPicture(picture);
  DimLabel->setText(QStringLiteral("Bitmap size: %1x%2").arg(picture.Width()).arg(picture.Height()));
}

void TVRXfrmRegionFromBMPdlg::LoadButtonClick() {
  TBitmap picture;
  if (!VRXCPGetPicture(this, picture)) return;
  ShowPicture(picture);
  // These were of the picture before.
  zoom->Clear();
  ViewLabel->clear();
  ShowColor(std::nullopt);
  otherPicture_ = !(picture == made_.picture);
  bordered_ = false;
  BuildButton->setEnabled(true);
  ShowNote();
}

void TVRXfrmRegionFromBMPdlg::Pick(TColor color) {
  const QString text = ColorToString(color);
  if (cl->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty()) {
    if (cl->count() >= static_cast<int>(MaxTransparentColors)) {
      Prompts().Inform(this, windowTitle(),
                       tr("The list is full: %1 colors can be transparent.").arg(cl->count()));
      return;
    }
    cl->addItem(text);
  }
  BuildButton->setEnabled(true);
  ShowNote();
}

void TVRXfrmRegionFromBMPdlg::Image1MouseDown(Qt::MouseButton button, QPoint pixel) {
  const TBitmap& picture = Image1->Picture();
  if (!QRect(0, 0, picture.Width(), picture.Height()).contains(pixel)) return;
  if (button == Qt::LeftButton) Pick(picture.Pixel(pixel.x(), pixel.y()));
  if (button != Qt::RightButton) return;
  const auto origin = [](int at, int side) {
    return at + ZoomBox::Cells > side ? side - ZoomBox::Cells : at;
  };
  const QPoint from(origin(pixel.x(), picture.Width()), origin(pixel.y(), picture.Height()));
  ViewLabel->setText(QStringLiteral("(%1x%2)").arg(from.x()).arg(from.y()));
  zoom->ShowPart(picture, from);
}

void TVRXfrmRegionFromBMPdlg::Image1MouseMove(QPoint pixel) {
  const TColor color = Image1->Picture().Pixel(pixel.x(), pixel.y());
  ShowColor(color == clInvalid ? std::nullopt : std::optional(color));
}

void TVRXfrmRegionFromBMPdlg::zoomMouseDown(Qt::MouseButton button, QPoint place) {
  if (button != Qt::LeftButton) return;
  if (const auto color = zoom->ColorAt(place)) Pick(*color);
}

void TVRXfrmRegionFromBMPdlg::zoomMouseMove(QPoint place) { ShowColor(zoom->ColorAt(place)); }

void TVRXfrmRegionFromBMPdlg::ShowColor(std::optional<TColor> color) {
  QPalette palette = cc->palette();
  palette.setColor(QPalette::Window, color ? ToQColor(*color) : this->palette().color(QPalette::Window));
  palette.setColor(QPalette::WindowText, Readable(palette.color(QPalette::Window)));
  cc->setPalette(palette);
  cc->setText(color ? ColorToString(*color) : QString());
}

void TVRXfrmRegionFromBMPdlg::RemoveSelected() {
  if (building_) return;
  qDeleteAll(cl->selectedItems());
  BuildButton->setEnabled(true);
  ShowNote();
}

bool TVRXfrmRegionFromBMPdlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == cl && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && !cl->selectedItems().isEmpty()) {
      RemoveSelected();
      return true;
    }
  }
  return RowDialog::eventFilter(watched, event);
}

// However the dialog is closed, a build in it ends.
void TVRXfrmRegionFromBMPdlg::done(int result) {
  closed_ = true;
  RowDialog::done(result);
}

void TVRXfrmRegionFromBMPdlg::cbChange() {
  BuildButton->setEnabled(true);
  ShowNote();
}
void TVRXfrmRegionFromBMPdlg::ccbChange() { Write(ccb); }
void TVRXfrmRegionFromBMPdlg::colbChange() {
  Write(colb);
  ShowResult();
}

void TVRXfrmRegionFromBMPdlg::BuildButtonClick() {
  if (building_) return;
  if (cl->count() == 0) {
    Prompts().Inform(this, windowTitle(),
                     QStringLiteral("Please choose at least one color to be transparent!"));
    return;
  }
  bool built = false;
  const auto finish = qScopeGuard([&, confirmable = OKButton->isEnabled()] {
    building_ = false;
    Progress->hide();
    pages->setEnabled(true);
    OKButton->setEnabled(built || confirmable);
    BuildButton->setEnabled(!built);
    ShowNote();
  });
  building_ = true;
  closed_ = false;
  // Nothing may change under the run, and half a mask is not to be confirmed.
  pages->setEnabled(false);
  OKButton->setEnabled(false);
  ShowNote();
  Progress->SetPercent(0);
  Progress->show();
  try {
    TRegionBuild build = Build();
    const TUpdateLock lock(*mask);
    mask->SetRegion(std::move(build.Region).value_or(TRegion()));
    mask->SetBorderPicture(build.Border);
    if (buttonFace) {
      mask->SetStatePicture(0, build.First);
      mask->SetStatePicture(1, build.Second);
    }
  } catch (const BuildEnded&) {
    return;
  }
  ShowResult();
  NoteSettings();
  built = true;
}

TRegionBuild TVRXfrmRegionFromBMPdlg::Build() {
  std::vector<TColor> transparent;
  for (int i = 0; i < cl->count(); ++i) transparent.push_back(StringToColor(cl->item(i)->text()));
  BuildProgress progress(*Progress, closed_);
  const TBitmap& picture = Image1->Picture();
  return buttonFace ? BuildButtonRegion(picture, transparent, static_cast<TRegionButton>(Style()), &progress)
                    : BuildWindowRegion(picture, transparent, static_cast<TRegionBorder>(Style()), &progress);
}

QStringList TVRXfrmRegionFromBMPdlg::Colors() const {
  QStringList colors;
  for (int i = 0; i < cl->count(); ++i) colors << cl->item(i)->text();
  colors.sort();
  return colors;
}

int TVRXfrmRegionFromBMPdlg::Style() const { return (buttonFace ? cb2 : cb)->currentIndex(); }

// The result is of what is set now.
void TVRXfrmRegionFromBMPdlg::NoteSettings() {
  made_.picture.Assign(&Image1->Picture());
  made_.colors = Colors();
  made_.style = Style();
  otherPicture_ = false;
  ShowNote();
}

bool TVRXfrmRegionFromBMPdlg::ResultIsOlder() const {
  return OKButton->isEnabled() && (otherPicture_ || Style() != made_.style || Colors() != made_.colors);
}

void TVRXfrmRegionFromBMPdlg::ShowNote() {
  const bool older = ResultIsOlder();
  const bool overBorder = bordered_ && (!older || Style() != made_.style);
  note->setText(overBorder ? tr("The picture has its border already; load it again for another one.")
                : older    ? tr("The result is older than the settings; Build makes it anew.")
                           : QString());
}

// What a control with this mask will look like.
void TVRXfrmRegionFromBMPdlg::ShowResult() { Result->SetImage(mask->Shown(0)); }
