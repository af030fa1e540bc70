#include "package/dialogs/pVRX3DEffectEditorDlg.h"

#include <QtWidgets>

#include "designintf/IdeTheme.h"
#include "library/values/TextDraw.h"
#include "library_design/Named.h"
#include "library_design/PictureDialog.h"
#include "library_design/pVRXCommon.h"
#include "package/property_editors/pVRXCPGetMain.h"

void VRXDrawCaptionFace(const TVRXCaption& caption, TBitmap& bitmap) {
  QRect rect = VRXDrawTextCalcExt(caption.Caption(), *caption.FontFX(), *caption.Font(), caption.MultiLine());
  bitmap.SetSize(rect.width(), rect.height());
  bitmap.Fill(clSilver);
  if (bitmap.Empty()) return;
  rect.moveTopLeft({0, 0});
  QPainter painter(&bitmap.WritableImage());
  TCanvas canvas(painter);
  VRXDrawTextExt(canvas, caption.Caption(), *caption.FontFX(), *caption.Font(), rect,
                 {TVRXTextOption::Measured}, caption.TextFlags(), rect, clSilver);
}

namespace {
// The texts of the list of states, in the order of the bitmaps they show.
const QStringList& StateTexts() {
  static const QStringList texts{QStringLiteral("Original"), QStringLiteral("Up"), QStringLiteral("Down"),
                                 QStringLiteral("Disabled")};
  return texts;
}
enum { Original, Up, Down, Disabled };
}  // namespace

TVRX3DEffectEditorDlg::TVRX3DEffectEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("3D Effect Editor"), QSize(610, 311), owner, 272) {
  setObjectName(QStringLiteral("VRX3DEffectEditorDlg"));
  Build();
  FormCreate();
}
TVRX3DEffectEditorDlg::~TVRX3DEffectEditorDlg() = default;

void TVRX3DEffectEditorDlg::BuildSettings() {
  btngetpic = Named(new QPushButton(QStringLiteral("&Picture >>"), this), "btngetpic",
                    "Specify a picture for the 3D-effect.");
  btngetcap = Named(new QPushButton(QStringLiteral("&Caption >>"), this), "btngetcap",
                    "Specify a VRXCaption for the 3D-effect.");
  auto* sources = new QWidget(this);
  auto* row = new QHBoxLayout(sources);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  for (QPushButton* button : {btngetpic, btngetcap}) {
    button->setAutoDefault(false);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this,
            [this, button] { Guarded([&] { btngetpicClick(button); }); });
  }
  AddWide(sources);
  spind = Named(new TVRXSpinEdit(255, 3, this), "spind", "Specifies the width of the bevel.");
  AddRow(QStringLiteral("Bevel-Width:"), spind);
  connect(spind, &QSpinBox::valueChanged, this, [this] { Guarded([&] { spindChange(); }); });
  settings_ = {btngetpic, btngetcap, spind};
  const auto color = [this](TVRXColorComboBox*& combo, QToolButton*& button, const char* name,
                            const char* buttonName, const char* label, const char* hint) {
    using enum TColorBoxStyle;
    combo = Named(new TVRXColorComboBox({csDefaultColors, csSystemColors, csAnyColor}, this), name, hint);
    button = NewColorButton(buttonName, this);
    button->setToolTip(QString::fromLatin1(hint));
    AddRow(QString::fromLatin1(label), combo, button);
    connect(combo, &TVRXColorComboBox::Change, this, [this, combo] { Guarded([&] { cmbBChange(combo); }); });
    connect(button, &QToolButton::clicked, this, [this, button] { Guarded([&] { dlgBClick(button); }); });
    settings_.insert(settings_.end(), {combo, button});
  };
  color(cmbB, dlgb, "cmbB", "dlgb", "Color Bevel: ", "Specifies the color of the bevel.");
  color(cmbD, dlgd, "cmbD", "dlgd", "Color Disabled: ", "Specifies the color of the disabled style.");
  color(cmbL, dlgl, "cmbL", "dlgl", "Color Light: ", "Specifies the color of the lightened bevel parts.");
  color(cmbS, dlgs, "cmbS", "dlgs", "Color Shadow: ", "Specifies the color of the darkened bevel parts.");
}

void TVRX3DEffectEditorDlg::BuildRight() {
  BtnImg = Named(new PictureView(this), "BtnImg", "");
  SetPreview(ScrollBoxOf(BtnImg, this));
  note = QuietLine(this, "note");
  cmbState = Named(new QComboBox(this), "cmbState", "");
  cmbState->addItems({StateTexts()[Up], StateTexts()[Down], StateTexts()[Disabled], StateTexts()[Original]});
  cmbState->setCurrentText(StateTexts()[Original]);
  cmbState->setEnabled(false);
  EXECUTE =
      Named(new QPushButton(QStringLiteral("&Execute"), this), "EXECUTE", "Executes the 3D-effect routine.");
  STOP = Named(new QPushButton(QStringLiteral("&Stop"), this), "STOP", "Aborts the 3D effect-routine");
  vrxprog = Named(new TVRXProgressBar(20, this), "vrxprog", "");
  Ok = Named(new QPushButton(QStringLiteral("OK"), this), "Ok", "");
  VRXButton4 = Named(new QPushButton(QStringLiteral("Cancel"), this), "VRXButton4", "");
  for (QPushButton* button : {EXECUTE, STOP, Ok, VRXButton4}) button->setAutoDefault(false);
  const auto pair = [this](QWidget* a, QWidget* b) {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(a, 1);
    row->addWidget(b, 1);
    AddBelowPreview(box);
  };
  AddBelowPreview(note);
  AddBelowPreview(cmbState);
  pair(EXECUTE, STOP);
  AddBelowPreview(vrxprog);
  pair(Ok, VRXButton4);
  AddOk(Ok);
  AddCancel(VRXButton4);
}

void TVRX3DEffectEditorDlg::Build() {
  BuildSettings();
  BuildRight();
  connect(cmbState, &QComboBox::textActivated, this, [this] { Guarded([&] { cmbStateChange(); }); });
  connect(EXECUTE, &QPushButton::clicked, this, [this] { Guarded([&] { EXECUTEClick(); }); });
  connect(STOP, &QPushButton::clicked, this, [this] { STOPClick(); });
  SetTabSequence({btngetpic, btngetcap, spind, cmbB, dlgb, cmbD, dlgd, cmbL, dlgl, cmbS, dlgs, cmbState,
                  EXECUTE, STOP, Ok, VRXButton4});
  FinishLayout(false);
}

void TVRX3DEffectEditorDlg::FormCreate() {
  ShareCustomColors({cmbB, cmbD, cmbL, cmbS});
  activated = false;
  caption = std::make_unique<TVRXCaption>();
  VRXSetThemeMode(*this, 1);
  ApplyIDETheme(*this, [this](const QWidget& control) { return &control != BtnImg; });
}

void TVRX3DEffectEditorDlg::FormActivate() {
  EditorDialog::FormActivate();
  constexpr std::uint8_t MaxBevel = 5;
  bevelWidth = std::min(bevelWidth, MaxBevel);
  spind->setMaximum(MaxBevel);
  SetLabels();
  if (bitmaps[Original] && !bitmaps[Original]->Empty()) ShowState(Original);
  // Results that were handed over are taken for what these settings lead to.
  made_ = CurrentSettings();
  ShowNote();
}

void TVRX3DEffectEditorDlg::LoadControls() {
  TVRXColorComboBox* const combos[] = {cmbB, cmbD, cmbL, cmbS};
  for (std::size_t i = 0; i < 4; ++i) combos[i]->SetSelected(colors[i]);
  spind->Show(bevelWidth);
}

void TVRX3DEffectEditorDlg::FormClose() { VRXSaveCustomColors(cmbB->CustomColors()); }

void TVRX3DEffectEditorDlg::cmbBChange(const TVRXColorComboBox* sender) {
  if (sender == cmbB)
    colors[0] = cmbB->Selected();
  else if (sender == cmbD)
    colors[1] = cmbD->Selected();
  else if (sender == cmbL)
    colors[2] = cmbL->Selected();
  else
    colors[3] = cmbS->Selected();
  ShowNote();
}

// What the spin edit shows before the dialog is active is not the launcher's width yet.
void TVRX3DEffectEditorDlg::spindChange() {
  if (!activated) return;
  bevelWidth = static_cast<std::uint8_t>(spind->value());
  ShowNote();
}

void TVRX3DEffectEditorDlg::dlgBClick(const QToolButton* sender) {
  (sender == dlgb ? cmbB : sender == dlgd ? cmbD : sender == dlgl ? cmbL : cmbS)->Execute();
}

void TVRX3DEffectEditorDlg::btngetpicClick(const QPushButton* sender) {
  if (sender == btngetcap) {
    // Cancelled or empty, the caption is what it was.
    TVRXCaption edited;
    edited.Assign(caption.get());
    if (!VRXCPGetVRXCaption(edited, true)) return;
    // A text of which nothing is drawn is as good as none.
    TBitmap face;
    VRXDrawCaptionFace(edited, face);
    if (face.Empty()) return;
    caption->Assign(&edited);
    bitmaps[Original]->Assign(&face);
  } else if (!VRXCPGetPicture(this, *bitmaps[Original])) {
    return;
  }
  EXECUTE->setEnabled(true);
  cmbState->setCurrentText(StateTexts()[Original]);
  ShowState(Original);
  // Earlier results are not this source's.
  Ok->setEnabled(false);
  cmbState->setEnabled(false);
  nothingToDo_ = false;
  ShowNote();
}

void TVRX3DEffectEditorDlg::EXECUTEClick() {
  if (running_) return;
  const TBitmap& source = *bitmaps[Original];
  RequireButton3DSize(tr("With a bevel of %1, each of the pictures").arg(bevelWidth), source, bevelWidth);
  const auto settings = [this](bool enabled) {
    for (QWidget* widget : settings_) widget->setEnabled(enabled);
  };
  const auto finish = qScopeGuard([&] {
    setWindowTitle(QStringLiteral("3DEffect-Editor"));
    vrxprog->SetPercent(0);
    VRX3DEffectAbort = false;
    STOP->setEnabled(false);
    EXECUTE->setEnabled(true);
    settings(true);
    running_ = false;
    ShowNote();
  });
  running_ = true;
  EXECUTE->setEnabled(false);
  STOP->setEnabled(true);
  // Nothing may change under the run, and it is not to be confirmed before its end.
  Ok->setEnabled(false);
  cmbState->setEnabled(false);
  settings(false);
  ShowNote();
  VRX3DEffectAbort = false;
  setWindowTitle(QStringLiteral("Please wait - effect is being generated..."));
  const TColor transparent = source.Pixel(0, source.Height() - 1);
  RunProgress progress(*vrxprog);
  // Nothing comes of nothing: a bevel around no picture would be results that OK has no use for.
  nothingToDo_ = source.Empty();
  if (!nothingToDo_)
    VRXDrawButton3D(source, *bitmaps[Up], *bitmaps[Down], *bitmaps[Disabled], transparent, colors[2],
                    colors[3], colors[1], clNone, clNone, colors[0], false, bevelWidth, &progress);
  const bool complete = !VRX3DEffectAbort;
  if (complete && !nothingToDo_) made_ = CurrentSettings();
  cmbState->setCurrentText(StateTexts()[complete ? Up : Original]);
  ShowState(complete ? Up : Original);
  Ok->setEnabled(complete);
  cmbState->setEnabled(complete);
}

void TVRX3DEffectEditorDlg::STOPClick() { VRX3DEffectAbort = true; }

// Cancel and Escape are Stop, too, whether something runs or not.
void TVRX3DEffectEditorDlg::reject() {
  STOPClick();
  EditorDialog::reject();
}

// However the dialog is closed, a run in it ends.
void TVRX3DEffectEditorDlg::done(int result) {
  if (running_) STOPClick();
  EditorDialog::done(result);
}

bool TVRX3DEffectEditorDlg::ResultsAreOlder() const {
  const auto filled = [](const TBitmap* b) { return b && !b->Empty(); };
  return Ok->isEnabled() && made_ && *made_ != CurrentSettings() &&
         std::any_of(bitmaps + Up, bitmaps + Disabled + 1, filled);
}

void TVRX3DEffectEditorDlg::ShowNote() {
  note->setText(ResultsAreOlder() ? tr("Older than the settings")
                : nothingToDo_    ? tr("No picture or caption yet")
                                  : QString());
}

// Return in a field is for the default button, but what is older than the settings is confirmed by the button
// itself only.
void TVRX3DEffectEditorDlg::keyPressEvent(QKeyEvent* event) {
  const bool confirms = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (confirms && ResultsAreOlder()) return event->accept();
  EditorDialog::keyPressEvent(event);
}

void TVRX3DEffectEditorDlg::cmbStateChange() {
  const auto state = StateTexts().indexOf(cmbState->currentText());
  if (state >= 0) ShowState(static_cast<int>(state));
}

void TVRX3DEffectEditorDlg::ShowState(int state) { BtnImg->SetPicture(*bitmaps[state]); }
