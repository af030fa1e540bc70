#include "package/dialogs/pVRX3DEffectEditorDlg.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"
#include "library/values/TextDraw.h"
#include "library_design/Named.h"
#include "library_design/PictureDialog.h"
#include "library_design/pVRXCommon.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"

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
  using D = TVRX3DEffectEditorDlg;
  Button(btngetpic, "btngetpic", "&Picture >>", &D::btngetpicClick, "Specify a picture for the 3D-effect.");
  Button(btngetcap, "btngetcap", "&Caption >>", &D::btngetpicClick,
         "Specify a VRXCaption for the 3D-effect.");
  Wide({btngetpic, btngetcap});
  Row(spind, "spind", "", "Bevel-Width:", "Specifies the width of the bevel.")
      .Range(0, 255, 3)
      .Changes(&D::spindChange);
  const auto color = [this](TVRXColorComboBox*& combo, const char* name, QToolButton*& button,
                            const char* buttonName, const char* label, const char* hint) {
    using enum TColorChoice;
    Row(combo, name, "", label, hint)
        .WithButton(button, buttonName, &D::dlgBClick, hint)
        .Changes(&D::cmbBChange);
    combo->SetStyles({csDefaultColors, csSystemColors, csAnyColor});
  };
  color(cmbB, "cmbB", dlgb, "dlgb", "Color Bevel: ", "Specifies the color of the bevel.");
  color(cmbD, "cmbD", dlgd, "dlgd", "Color Disabled: ", "Specifies the color of the disabled style.");
  color(cmbL, "cmbL", dlgl, "dlgl", "Color Light: ", "Specifies the color of the lightened bevel parts.");
  color(cmbS, "cmbS", dlgs, "dlgs", "Color Shadow: ", "Specifies the color of the darkened bevel parts.");

  BtnImg = Named(new PictureView(this), "BtnImg", "");
  OwnColors({BtnImg});
  QScrollArea* box = ScrollBoxOf(BtnImg, this);
  box->setFocusPolicy(Qt::ClickFocus);
  SetPreview(box);
  note = QuietLine(this, "note");
  cmbState = Named(new QComboBox(this), "cmbState", "");
  cmbState->addItems({StateTexts()[Up], StateTexts()[Down], StateTexts()[Disabled], StateTexts()[Original]});
  cmbState->setCurrentText(StateTexts()[Original]);
  cmbState->setEnabled(false);
  connect(cmbState, &QComboBox::textActivated, this, [this] { Guarded([&] { cmbStateChange(); }); });
  Follows(cmbState);
  Button(EXECUTE, "EXECUTE", "&Execute", &D::EXECUTEClick, "Executes the 3D-effect routine.");
  Button(STOP, "STOP", "&Stop", &D::STOPClick, "Aborts the 3D effect-routine");
  vrxprog = Named(new TVRXProgressBar(20, this), "vrxprog", "");
  OkButton(Ok, "Ok");
  CancelButton(VRXButton4, "VRXButton4");
  AddBelowPreview({note});
  AddBelowPreview({cmbState});
  AddBelowPreview({EXECUTE, STOP});
  AddBelowPreview({vrxprog});
  AddBelowPreview({Ok, VRXButton4});
  VRXSetThemeMode(*this, 1);
  Finish(false);
}

void TVRX3DEffectEditorDlg::FormActivate() {
  EditorDialog::FormActivate();
  constexpr std::uint8_t MaxBevel = 5;
  bevelWidth = std::min(bevelWidth, MaxBevel);
  spind->setMaximum(MaxBevel);
  SetLabels();
  if (!bitmaps[Original]->Empty()) ShowState(Original);
  // Results that were handed over are taken for what these settings lead to.
  made_ = CurrentSettings();
  ShowNote();
}

void TVRX3DEffectEditorDlg::LoadControls() {
  TVRXColorComboBox* const combos[] = {cmbB, cmbD, cmbL, cmbS};
  for (std::size_t i = 0; i < 4; ++i) combos[i]->SetSelected(colors[i]);
  spind->Show(bevelWidth);
}

void TVRX3DEffectEditorDlg::cmbBChange(const TVRXColorComboBox* sender) {
  colors[sender == cmbB ? 0 : sender == cmbD ? 1 : sender == cmbL ? 2 : 3] = sender->Selected();
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
    if (!EditValue<TVRXCaptionEditorDlg>(edited)) return;
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
  EXECUTE->setFocus();
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
  const auto finish = qScopeGuard([&] {
    setWindowTitle(QStringLiteral("3DEffect-Editor"));
    vrxprog->SetPercent(0);
    VRX3DEffectAbort = false;
    STOP->setEnabled(false);
    EXECUTE->setEnabled(true);
    SettingsPanel().setEnabled(true);
    running_ = false;
    ShowNote();
  });
  running_ = true;
  const QPointer<QWidget> focus = focusWidget();  // what is disabled loses it
  EXECUTE->setEnabled(false);
  STOP->setEnabled(true);
  // Nothing may change under the run, and it is not to be confirmed before its end.
  Ok->setEnabled(false);
  cmbState->setEnabled(false);
  SettingsPanel().setEnabled(false);
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
  if (complete)
    Ok->setFocus();
  else if (focus)
    QTimer::singleShot(0, focus, [focus] { focus->setFocus(); });
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
  const auto filled = [](const TBitmap* b) { return !b->Empty(); };
  return Ok->isEnabled() && made_ && *made_ != CurrentSettings() &&
         std::any_of(bitmaps + Up, bitmaps + Disabled + 1, filled);
}

void TVRX3DEffectEditorDlg::ShowNote() {
  note->setText(ResultsAreOlder() ? tr("Older than the settings")
                : nothingToDo_    ? tr("No picture or caption yet")
                                  : QString());
}

void TVRX3DEffectEditorDlg::cmbStateChange() {
  const auto state = StateTexts().indexOf(cmbState->currentText());
  if (state >= 0) ShowState(static_cast<int>(state));
}

void TVRX3DEffectEditorDlg::ShowState(int state) { BtnImg->SetPicture(*bitmaps[state]); }
