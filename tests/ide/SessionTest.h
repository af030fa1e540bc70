// Short cuts for tests of open forms.
#pragma once
#include <gtest/gtest.h>

#include <QtCore>

#include "dclstd/StandardEditors.h"
#include "designintf/DesignIntf.h"
#include "designintf/DesignRegistry.h"
#include "designintf/DesignWindow.h"
#include "forms/TextWriter.h"
#include "ide/FormSession.h"
#include "library/controls/LEDLabel.h"
#include "package/property_editors/pVRXPeMain.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "vcl/Button.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"
#include "vcl/Timer.h"

// Forms are shown as texts when they differ.
inline void PrintTo(const QByteArray& bytes, std::ostream* out) { *out << bytes.toStdString(); }

namespace ide {

inline void RegisterAll() {
  static DesignRegistry registry;
  [[maybe_unused]] static const bool once = [] {
    RegisterStandard(registry);
    RegisterComponents(QStringLiteral("VRX Ext"), {&TVRXLEDLabel::StaticClass()});
    RegisterPropertyEditor(TVRXLED::StaticTypeInfo(), nullptr, {}, VRX_PROPERTY_EDITOR(TVRXLEDProperty));
    return true;
  }();
}

// A form with a bit of everything, some of it written in unusual ways that must survive.
inline const QByteArray Sample = R"(object Main: TMain
  Left = $10
  Top = 20
   Caption =   'Line '#39'4'#39
  ClientHeight = 300
  ClientWidth = 400
  Color = clBtnFace
  OnCreate = FormCreate
  Strange.Property = {
    00FF}
  object Panel1: TPanel
    Left = 8
    Top = 8
    Width = 200
    Height = 100
    TabOrder = 0
    object Inner: TButton
      Left = 8
      Top = 40
      Width = 75
      Height = 25
      Caption = 'Inner'
      TabOrder = 0
      OnClick = InnerClick
    end
    object InnerLabel: TLabel
      Left = 8
      Top = 8
      Width = 40
      Height = 15
      Caption = 'Look'
      FocusControl = Inner
    end
  end
  object Label1: TLabel
    Left = 240
    Top = 16
    Width = 60
    Height = 15
    AutoSize = False
    Caption = 'Go'
    FocusControl = Button1
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clRed
    Font.Height = -12
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    ParentFont = False
  end
  object Button1: TButton
    Left = 240
    Top = 40
    Width = 75
    Height = 25
    Anchors = [akTop, akRight]
    Caption = 'Go'
    Tag = $2A
    TabOrder = 1
    OnClick = Button1Click
  end
  object Led: TVRXLEDLabel
    Left = 240
    Top = 80
    Width = 120
    Height = 40
    AutoSize = False
    Caption = '88:88'
    LED.ActiveColor = clAqua
  end
  object Mystery: TMysteryBox
    Left = 240
    Top = 140
    Width = 50
    Height = 50
    Items = <
      item
        Text = 'one'
      end
      item
        Text = 'two'
      end>
    Link = Button1
    object Secret: TSecret
      Deep = (
        1
        2.500000000000000000)
    end
  end
  object Timer1: TTimer
    Interval = 250
    OnTimer = Timer1Timer
    Left = 320
    Top = 200
  end
end
)";

// Everything the components say about themselves, as one text.
inline std::string StateOf(const FormSession& session) {
  QByteArray state;
  for (const TComponent* c : session.AllComponents()) {
    const TComponent* parent = c->GetParentComponent();
    state += c->Name().toUtf8() + ": " + c->StreamClassName() + " in " +
             (parent ? parent->Name().toUtf8() : QByteArray("nothing")) + '\n';
    for (const forms::StoredValue& v : forms::PropertyValues(*c, session.Document(), true))
      state += "  " + v.path + " = " + forms::ValueToText(v.value, {}) + '\n';
  }
  return state.toStdString();
}
inline std::string StateOf(const QByteArray& bytes) { return StateOf(*FormSession::FromBytes(bytes)); }

// The lines that only one of the two texts has, in order, marked "-" and "+".
inline QByteArrayList ChangedLines(const QByteArray& before, const QByteArray& after) {
  const QByteArrayList a = before.split('\n'), b = after.split('\n');
  const auto n = a.size(), m = b.size();
  std::vector<std::vector<int>> common(static_cast<std::size_t>(n + 1),
                                       std::vector<int>(static_cast<std::size_t>(m + 1)));
  const auto at = [&](qsizetype i, qsizetype j) -> int& {
    return common[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)];
  };
  for (auto i = n - 1; i >= 0; --i)
    for (auto j = m - 1; j >= 0; --j)
      at(i, j) = a[i] == b[j] ? at(i + 1, j + 1) + 1 : std::max(at(i + 1, j), at(i, j + 1));
  QByteArrayList changed;
  qsizetype i = 0, j = 0;
  while (i < n || j < m) {
    if (i < n && j < m && a[i] == b[j]) {
      ++i, ++j;
    } else if (i < n && (j == m || at(i + 1, j) >= at(i, j + 1))) {
      changed << "-" + a[i++].trimmed();
    } else {
      changed << "+" + b[j++].trimmed();
    }
  }
  return changed;
}

class SessionTest : public testing::Test {
 protected:
  void SetUp() override {
    RegisterAll();
    session_ = FormSession::FromBytes(Sample);
    state_ = StateOf(*session_);
  }
  template <class T = TControl>
  T& Get(const char* name) {
    return dynamic_cast<T&>(*session_->GetComponent(QString::fromLatin1(name)));
  }
  // One command was recorded; its undo and redo give back exactly what was before and after, twice.
  void ExpectUndoable() {
    ASSERT_TRUE(session_->CanUndo());
    ASSERT_FALSE(session_->CanRedo());
    const QByteArray edited = session_->Bytes();
    const std::string editedState = StateOf(*session_);
    EXPECT_NE(edited, Sample);
    for (int round = 0; round < 2; ++round) {
      session_->Undo();
      EXPECT_FALSE(session_->CanUndo());
      EXPECT_EQ(session_->Bytes(), Sample);
      EXPECT_EQ(StateOf(*session_), state_);
      session_->Redo();
      EXPECT_EQ(session_->Bytes(), edited);
      EXPECT_EQ(StateOf(*session_), editedState);
    }
    EXPECT_EQ(StateOf(edited), editedState);
  }
  QByteArray Changes() const { return ChangedLines(Sample, session_->Bytes()).join('|'); }

  std::unique_ptr<FormSession> session_;
  std::string state_;
};

}  // namespace ide
