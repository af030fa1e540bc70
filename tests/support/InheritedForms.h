// A folder with a form, its ancestor, and the unit that says so.
#pragma once
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace inherited_forms {

inline const QByteArray Base = R"(object Base: TBase
  Left = 3
  Top = 4
  Caption = 'Base'
  ClientHeight = 300
  ClientWidth = 400
  OnCreate = FormCreate
  object Panel1: TPanel
    Left = 10
    Top = 20
    Width = 200
    Height = 100
    Caption = ''
    TabOrder = 0
    object Button1: TButton
      Left = 8
      Top = 9
      Width = 75
      Height = 25
      Caption = 'Go'
      Enabled = False
      TabOrder = 0
    end
    object Box1: TMysteryBox
      Left = 100
      Top = 9
      Width = 60
      Height = 25
    end
  end
  object Label1: TLabel
    Left = 240
    Top = 16
    Width = 60
    Height = 15
    Caption = 'Of the base'
    FocusControl = Button1
  end
  object Timer1: TTimer
    Interval = 250
    Left = 320
    Top = 200
  end
end
)";

inline const QByteArray Derived = R"(inherited Derived: TDerived
  Caption = 'Derived'
  object Extra: TButton
    Left = 240
    Top = 60
    Width = 75
    Height = 25
    Caption = 'Extra'
    TabOrder = 1
  end
end
)";

inline const QByteArray Unit = R"(unit Derived;
// TDerived = class(TNever)
{ TDerived = class(TNever) } (* TDerived = class(TNever) *)
const S = 'TDerived = class(TNever)';
type
  TDerived = class;
  tderived = CLASS(BaseUnit.TBase, IOther)
  end;
end.
)";

class Files {
 public:
  Files() {
    Write("Base.dfm", Base);
    Write("Derived.dfm", Derived);
    Write("Derived.pas", Unit);
  }
  QString Folder() const { return folder_.path(); }
  QString Path(const char* name) const { return folder_.filePath(QString::fromLatin1(name)); }
  void Write(const char* name, const QByteArray& bytes) const {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  QByteArray Read(const char* name) const {
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace inherited_forms
