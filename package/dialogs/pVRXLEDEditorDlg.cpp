#include "package/dialogs/pVRXLEDEditorDlg.h"

#include <QtWidgets>

#include "designintf/IdeTheme.h"
#include "library/values/LightColor.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

TVRXLEDEditorDlg::TVRXLEDEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("LED Editor"), QSize(533, 318), owner),
      test(std::make_unique<TVRXLEDLabel>(nullptr)) {
  Build();
  FormCreate();
}

TVRXLEDEditorDlg::~TVRXLEDEditorDlg() { testView->SetControl(nullptr); }

void TVRXLEDEditorDlg::Build() {
  edhs = Named(new TVRXSpinEdit(255, 3, this), "edhs", "Defines the horizontal size of the LED-letters.");
  edvs = Named(new TVRXSpinEdit(255, 3, this), "edvs", "Defines the vertical size of the LED-letters.");
  edt = Named(new TVRXSpinEdit(99, 2, this), "edt", "Defines the thickness of the LED-letters.");
  cmbb = Named(new TVRXColorComboBox, "cmbb", "Defines the color for active LED-letters.");
  cmbL = Named(new TVRXColorComboBox, "cmbL", "Defines the color for inactive LED-letters.");
  bt1 = NewColorButton("bt1", this);
  bt2 = NewColorButton("bt2", this);
  pred = Named(new OneShotComboBox(this), "pred",
               "Defines the color for both \r\nactive and inactive LED-letters.");
  pred->setMaxVisibleItems(4);
  auto* note = new QLabel(
      QStringLiteral("Predefined Color-Settings for Active-/InActiveColor\r\ndon't appear in the Combobox."),
      this);
  note->setObjectName(QStringLiteral("note"));
  note->setForegroundRole(QPalette::PlaceholderText);
  note->setWordWrap(true);
  chk = Named(
      new QCheckBox(QStringLiteral(" &DisabledDigits"), this), "chk",
      "If DisabledDigits is set to true and\r\nEnabled to false, the LED will be \r\ndisplayed with the "
      "InactiveColor.");

  AddRow(QStringLiteral("&HorzSize:"), edhs);
  AddRow(QStringLiteral("&VertSize:"), edvs);
  AddRow(QStringLiteral("&Thickness:"), edt);
  AddRow(QStringLiteral("&ActiveColor:"), cmbb, bt1);
  AddRow(QStringLiteral("&InActiveColor:"), cmbL, bt2);
  AddRow(QStringLiteral("&Pred. Color:"), pred);
  AddWide(note);
  AddWide(chk);

  test->SetCaption(QStringLiteral("Preview"));
  test->LED()->SetSize(1, 9);
  test->LED()->SetSize(3, 7);
  testView = Named(new ControlView(test.get(), this), "test", "Shows the current settings.");
  SetPreview(testView, Qt::AlignTop | Qt::AlignRight);

  ok = Named(AddButton(QStringLiteral("OK")), "ok", "");
  Button1 = Named(AddButton(QStringLiteral("Cancel")), "Button1", "");
  reset = Named(AddButton(QStringLiteral("Reset")), "reset", "");
  AddOk(ok);
  AddCancel(Button1);

  for (TVRXSpinEdit* edit : {edhs, edvs, edt})
    connect(edit, &QSpinBox::valueChanged, this, [this, edit] { Guarded([&] { edchange(edit); }); });
  for (TVRXColorComboBox* combo : {cmbb, cmbL})
    connect(combo, &TVRXColorComboBox::Change, this, [this, combo] { Guarded([&] { cmbc(combo); }); });
  for (QToolButton* button : {bt1, bt2})
    connect(button, &QToolButton::clicked, this, [this, button] { Guarded([&] { btn(button); }); });
  connect(pred, &QComboBox::currentIndexChanged, this, [this] { Guarded([&] { predChange(); }); });
  connect(chk, &QCheckBox::toggled, this, [this] { Guarded([&] { chkClick(); }); });
  connect(reset, &QPushButton::clicked, this, [this] { Guarded([&] { resetClick(); }); });
  SetTabSequence({edhs, edvs, edt, cmbb, bt1, cmbL, bt2, pred, chk, ok, Button1, reset});
  FinishLayout();
}

bool TVRXLEDEditorDlg::NeedTheme(const QWidget& control) const { return &control != testView; }

void TVRXLEDEditorDlg::FormCreate() {
  {
    const QSignalBlocker quiet(pred);
    for (const QByteArray& name : TypeInfoOf<TVRXLightColor>::Get().Elements)
      pred->addItem(QString::fromLatin1(name));
    pred->setCurrentIndex(-1);
  }
  ShareCustomColors({cmbb, cmbL});
  activated = false;
  VRXSetThemeMode(*this, 1);
  ApplyIDETheme(*this, [this](const QWidget& control) { return NeedTheme(control); });
}

void TVRXLEDEditorDlg::LoadControls() {
  const TVRXLED& led = *test->LED();
  edhs->Show(led.HorzSize());
  edvs->Show(led.VertSize());
  edt->Show(led.Thickness());
  cmbb->SetSelected(led.ActiveColor());
  cmbL->SetSelected(led.InActiveColor());
  chk->setChecked(led.DisabledDigits());
}

void TVRXLEDEditorDlg::edchange(const TVRXSpinEdit* sender) {
  const int index = sender == edhs ? 1 : sender == edt ? 2 : 3;
  test->LED()->SetSize(index, static_cast<std::uint8_t>(sender->value()));
  if (activated) SetLabels();
}

void TVRXLEDEditorDlg::cmbc(const TVRXColorComboBox* sender) {
  test->LED()->SetColor(sender == cmbb ? 0 : 1, sender->Selected());
  if (activated) SetLabels();
}

void TVRXLEDEditorDlg::predChange() {
  if (pred->currentIndex() == -1) return;
  const TVRXLightColors colors = VRXGetLightColors(static_cast<TVRXLightColor>(pred->currentIndex()));
  test->LED()->SetColor(0, colors.Active);
  test->LED()->SetColor(1, colors.Inactive);
  if (activated) SetLabels();
  // The list chooses once and never shows a current value.
  pred->setCurrentIndex(-1);
}

void TVRXLEDEditorDlg::chkClick() { test->LED()->SetDisabledDigits(chk->isChecked()); }

// Both dialogs work on the one list of custom colours that cmbb holds.
void TVRXLEDEditorDlg::btn(const QToolButton* sender) {
  if (sender == bt1) {
    cmbb->Execute();
    return;
  }
  QStringList colors = cmbb->CustomColors();
  cmbL->ExecuteEnh(colors);
  cmbb->SetCustomColors(colors);
}

void TVRXLEDEditorDlg::resetClick() {
  const TVRXLED defaults;
  test->LED()->Assign(&defaults);
  SetLabels();
}

void TVRXLEDEditorDlg::FormClose() { VRXSaveCustomColors(cmbb->CustomColors()); }
