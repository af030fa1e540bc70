// The property editor of LED looks, on real forms.
#include "designintf/DesignIntf.h"
#include "ide/InspectorModel.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "package/property_editors/pVRXPeMain.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "tests/package/LedTest.h"
#include "tests/support/Prompted.h"

using namespace ledtest;

// A component that has an LED look without being a LED label.
class TLampBank : public TComponent {
  VRX_CLASS(TLampBank)
 public:
  explicit TLampBank(TComponent* owner) : TComponent(owner), led_(std::make_unique<TVRXLED>(this)) {}
  TVRXLED* LED() const { return led_.get(); }
  void SetLED(const TVRXLED* v) { led_->Assign(v); }

 private:
  std::unique_ptr<TVRXLED> led_;
};
const TClass& TLampBank::StaticClass() {
  static const TClass cls(DescribeClass<TLampBank>("TLampBank", TComponent::StaticClass())
                              .Published("LED", &TLampBank::LED, &TLampBank::SetLED));
  return cls;
}

namespace {
constexpr const char* FormText = R"(object Form1: TForm1
  Left = 0
  Top = 0
  ClientHeight = 200
  ClientWidth = 300
  object A: TVRXLEDLabel
    Left = 8
    Top = 8
    Width = 100
    Height = 30
    AutoSize = False
    Caption = '1'
    Color = clNavy
    LED.HorzSize = 12
    Transparent = True
  end
  object B: TVRXLEDLabel
    Left = 8
    Top = 48
    Width = 100
    Height = 30
    AutoSize = False
    Caption = '2'
  end
  object Lamps: TLampBank
    LED.HorzSize = 14
    Left = 200
    Top = 8
  end
end
)";

class ThrowingHost : public IControlHost {
 public:
  void ControlChanged(TControl&) override { throw Exception(QStringLiteral("The view is broken.")); }
};

class LedProperty : public LedDialog {
 protected:
  DesignRegistry registry_;
  void SetUp() override {
    LedDialog::SetUp();
    RegisterClass(TVRXLEDLabel::StaticClass());
    RegisterClass(TLampBank::StaticClass());
    RegisterPropertyEditor(TVRXLED::StaticTypeInfo(), nullptr, {}, VRX_PROPERTY_EDITOR(TVRXLEDProperty));
    session_ = FormSession::FromBytes(FormText);
    original_ = session_->Bytes();
  }
  void TearDown() override {
    model_.SetSession(nullptr);
    session_.reset();
  }
  TVRXLEDLabel& Label(const char* name) {
    return dynamic_cast<TVRXLEDLabel&>(*session_->GetComponent(QString::fromLatin1(name)));
  }
  // Opens the dialog from the inspector's row.
  QString Run(const std::vector<TComponent*>& selected, std::function<void(TVRXLEDEditorDlg&)> act) {
    session_->Select(selected);
    model_.SetSession(session_.get());
    modal::NextOf<TVRXLEDEditorDlg>(std::move(act));
    return model_.RunDialog(model_.IndexOfPath(QStringLiteral("LED")));
  }

  std::unique_ptr<FormSession> session_;
  InspectorModel model_;
  QByteArray original_;
};
}  // namespace

TEST_F(LedProperty, ItsAttributesAreSubPropertiesDialogAndMultiSelect) {
  const TPropInfo& prop = TVRXLEDLabel::StaticClass().GetProp("LED");
  const TVRXLEDProperty editor(nullptr, {{&Label("A"), &prop}});
  using enum TPropertyAttribute;
  EXPECT_EQ(editor.GetAttributes().Bits(),
            TPropertyAttributes({paSubProperties, paDialog, paMultiSelect}).Bits());
  EXPECT_EQ(editor.GetAttributes().Bits(), 0b1110u);
  EXPECT_EQ(editor.GetValue(), QStringLiteral("(TVRXLED)"));
}

TEST_F(LedProperty, TheDialogShowsTheValueAndTheLooksOfTheComponent) {
  Look look{};
  bool transparent = false;
  TColor color = clWhite;
  EXPECT_EQ(Run({&Label("A")},
                [&](auto& dlg) {
                  look = LookOf(*dlg.test->LED());
                  transparent = dlg.test->Transparent();
                  color = dlg.test->Color();
                  EXPECT_EQ(dlg.edhs->value(), 12);
                  dlg.reject();
                }),
            QString());
  EXPECT_EQ(look, LookOf(*Label("A").LED()));
  EXPECT_TRUE(transparent);
  EXPECT_EQ(color, clNavy);
}

TEST_F(LedProperty, AComponentThatIsNoLedLabelLeavesThePreviewsLooksAtTheirDefaults) {
  const TVRXLEDEditorDlg fresh(nullptr);
  Run({session_->GetComponent(QStringLiteral("Lamps"))}, [&](auto& dlg) {
    EXPECT_EQ(dlg.test->LED()->HorzSize(), 14);
    EXPECT_EQ(dlg.test->Transparent(), fresh.test->Transparent());
    EXPECT_EQ(dlg.test->Color(), fresh.test->Color());
    dlg.reject();
  });
}

TEST_F(LedProperty, CancelLeavesTheComponentUntouchedAndRecordsNothing) {
  const Look before = LookOf(*Label("A").LED());
  for (const bool closed : {false, true}) {
    EXPECT_EQ(Run({&Label("A")},
                  [closed](auto& dlg) {
                    Type(*dlg.edhs, QStringLiteral("99"));
                    ChooseRow(*dlg.pred, 2);
                    closed ? static_cast<void>(dlg.close()) : QTest::mouseClick(dlg.Button1, Qt::LeftButton);
                  }),
              QString());
    EXPECT_EQ(LookOf(*Label("A").LED()), before);
    EXPECT_FALSE(session_->CanUndo());
    EXPECT_FALSE(session_->IsModified());
    EXPECT_EQ(session_->Bytes(), original_);
  }
}

TEST_F(LedProperty, ResetAndThenCancelLeavesTheComponentUntouched) {
  Run({&Label("A")}, [](auto& dlg) {
    QTest::mouseClick(dlg.reset, Qt::LeftButton);
    QTest::mouseClick(dlg.Button1, Qt::LeftButton);
  });
  EXPECT_EQ(Label("A").LED()->HorzSize(), 12);
  EXPECT_EQ(session_->Bytes(), original_);
}

TEST_F(LedProperty, OkWritesTheValueAsOneCommandAndOnlyThen) {
  Run({&Label("A")}, [this](auto& dlg) {
    Type(*dlg.edhs, QStringLiteral("20"));
    ChooseRow(*dlg.pred, 2);
    EXPECT_EQ(Label("A").LED()->HorzSize(), 12);
    QTest::mouseClick(dlg.ok, Qt::LeftButton);
  });
  EXPECT_EQ(Label("A").LED()->HorzSize(), 20);
  EXPECT_EQ(Label("A").LED()->ActiveColor(), RGBColor(255, 56, 48));
  EXPECT_TRUE(session_->IsModified());
  EXPECT_TRUE(session_->Bytes().contains("LED.HorzSize = 20"));
  session_->Undo();
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), original_);
  EXPECT_EQ(Label("A").LED()->HorzSize(), 12);
}

TEST_F(LedProperty, OkWritesToEverySelectedComponent) {
  TVRXLEDLabel& other = Label("B");
  other.LED();
  Run({&Label("A"), &other}, [](auto& dlg) {
    EXPECT_EQ(dlg.edhs->value(), 12);  // the first one's
    Type(*dlg.edvs, QStringLiteral("31"));
    QTest::mouseClick(dlg.ok, Qt::LeftButton);
  });
  for (const char* name : {"A", "B"}) {
    EXPECT_EQ(Label(name).LED()->VertSize(), 31) << name;
    EXPECT_EQ(Label(name).LED()->HorzSize(), 12) << name;
  }
  session_->Undo();
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), original_);
}

TEST_F(LedProperty, OkWithoutAChangeRecordsNothing) {
  Run({&Label("A")}, [](auto& dlg) { QTest::mouseClick(dlg.ok, Qt::LeftButton); });
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), original_);
}

TEST_F(LedProperty, AHandlerThatThrowsLeavesTheValueUntilOk) {
  ScriptedPrompts prompts;
  ThrowingHost host;
  EXPECT_EQ(Run({&Label("A")},
                [&](auto& dlg) {
                  dlg.test->SetHost(&host);
                  dlg.edhs->setValue(50);
                  EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("The view is broken.")});
                  EXPECT_TRUE(dlg.isVisible());
                  EXPECT_EQ(Label("A").LED()->HorzSize(), 12);
                  dlg.test->SetHost(nullptr);
                  dlg.reject();
                }),
            QString());
  EXPECT_EQ(Label("A").LED()->HorzSize(), 12);
  EXPECT_FALSE(session_->CanUndo());
  EXPECT_EQ(session_->Bytes(), original_);
}

TEST_F(LedProperty, TheDialogIsGoneAfterwards) {
  QPointer<QDialog> shown;
  Run({&Label("A")}, [&](auto& dlg) {
    shown = &dlg;
    dlg.reject();
  });
  EXPECT_TRUE(shown.isNull());
}

TEST_F(LedDialog, TheLauncherWritesOnOkAndSaysSo) {
  TVRXLED led;
  modal::NextOf<TVRXLEDEditorDlg>([](auto& dlg) {
    EXPECT_EQ(dlg.edhs->value(), TVRXLED().HorzSize());
    Type(*dlg.edhs, QStringLiteral("19"));
    QTest::mouseClick(dlg.ok, Qt::LeftButton);
  });
  EXPECT_TRUE(VRXCPGetLED(led));
  EXPECT_EQ(led.HorzSize(), 19);
}

TEST_F(LedDialog, TheLauncherLeavesTheValueOnCancelAndSaysSo) {
  TVRXLED led;
  Apply(Other, led);
  modal::NextOf<TVRXLEDEditorDlg>([](auto& dlg) {
    QTest::mouseClick(dlg.reset, Qt::LeftButton);
    QTest::mouseClick(dlg.Button1, Qt::LeftButton);
  });
  EXPECT_FALSE(VRXCPGetLED(led));
  EXPECT_EQ(LookOf(led), Other);
}
