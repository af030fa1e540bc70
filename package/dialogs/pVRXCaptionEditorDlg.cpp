#include "package/dialogs/pVRXCaptionEditorDlg.h"

#include <QtWidgets>

#include "designintf/IdeTheme.h"
#include "library_design/FlatCheckBox.h"
#include "library_design/FontDialogs.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

TVRXCaptionEditorDlg::TVRXCaptionEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Caption Editor"), QSize(533, 318), owner),
      test(std::make_unique<TVRXShapeControl>(nullptr)) {
  test->Brush()->SetColor(clBtnFace);
  test->SetBevelColor(clBtnShadow);
  Build();
  FormCreate();
}

TVRXCaptionEditorDlg::~TVRXCaptionEditorDlg() { testView->SetControl(nullptr); }

void TVRXCaptionEditorDlg::Build() {
  cap = Named(new QLineEdit(this), "cap", "");
  cap->setMaxLength(INT_MAX);
  cmb = Named(new QComboBox(this), "cmb", "Aligns your text in the object it is embedded in.");
  chk = Named(new FlatCheckBox(QStringLiteral("MultiLine"), this), "chk",
              "Specifies whether WordWrap is used.");
  btnf = Named(new QPushButton(QStringLiteral("Font >>"), this), "btnf", "");
  btnffx = Named(new QPushButton(this), "btnffx", "Changes rotation, 3D-effect etc.");
  btnffx->setIcon(FontFxIcon());
  btnffx->setIconSize(QSize(20, 20));
  btnffx->setAccessibleName(QStringLiteral("FontFX"));
  for (QPushButton* button : {btnf, btnffx}) button->setAutoDefault(false);
  auto* fonts = new QWidget(this);
  auto* fontRow = new QHBoxLayout(fonts);
  fontRow->setContentsMargins(0, 0, 0, 0);
  fontRow->setSpacing(8);
  fontRow->addWidget(btnf, 1);
  fontRow->addWidget(btnffx);
  AddRow(QStringLiteral("&Caption:"), cap);
  AddRow(QStringLiteral("Alignment:"), cmb);
  AddWide(chk);
  AddWide(fonts);

  testView = Named(new ControlView(test.get(), this), "test", "");
  testView->SetFillView(true);
  SetPreview(testView);
  ok = Named(AddButton(QStringLiteral("OK")), "ok", "");
  Button1 = Named(AddButton(QStringLiteral("Cancel")), "Button1", "");
  reset = Named(AddButton(QStringLiteral("Reset")), "reset", "");
  AddOk(ok);
  AddCancel(Button1);

  for (const QByteArray& name : TypeInfoOf<TVRXAlignment>::Get().Elements)
    cmb->addItem(QString::fromLatin1(name));
  connect(cmb, &QComboBox::currentIndexChanged, this, [this] { Guarded([&] { cmbChange(); }); });
  connect(cap, &QLineEdit::textChanged, this, [this] { Guarded([&] { capChange(); }); });
  connect(chk, &QCheckBox::toggled, this, [this] { Guarded([&] { chkClick(); }); });
  for (QPushButton* button : {btnf, btnffx})
    connect(button, &QPushButton::clicked, this, [this, button] { Guarded([&] { btncClick(button); }); });
  connect(reset, &QPushButton::clicked, this, [this] { Guarded([&] { resetClick(); }); });
  SetTabSequence({cap, cmb, chk, btnf, btnffx, ok, Button1, reset});
  FinishLayout();
}

void TVRXCaptionEditorDlg::FormCreate() {
  activated = false;
  VRXSetThemeMode(*this, 1);
  ApplyIDETheme(*this, [this](const QWidget& control) { return &control != testView; });
}

void TVRXCaptionEditorDlg::LoadControls() {
  const TVRXCaption& caption = *test->Caption();
  // Setting the text that is there already would move the cursor.
  if (cap->text() != caption.Caption()) cap->setText(caption.Caption());
  chk->setChecked(caption.MultiLine());
  cmb->setCurrentIndex(static_cast<int>(caption.Alignment()));
}

void TVRXCaptionEditorDlg::cmbChange() {
  test->Caption()->SetAlignment(static_cast<TVRXAlignment>(cmb->currentIndex()));
  if (activated) SetLabels();
}
void TVRXCaptionEditorDlg::capChange() { test->Caption()->SetCaption(cap->text()); }
void TVRXCaptionEditorDlg::chkClick() { test->Caption()->SetMultiLine(chk->isChecked()); }

void TVRXCaptionEditorDlg::btncClick(const QPushButton* sender) {
  if (sender == btnf)
    VRXCPGetFont(*test->Caption()->Font());
  else
    VRXCPGetFontFx(*test->Caption()->FontFX());
}

void TVRXCaptionEditorDlg::resetClick() {
  const TVRXCaption defaults;
  test->Caption()->Assign(&defaults);
  SetLabels();
}
