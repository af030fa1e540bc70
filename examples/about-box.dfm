object AboutForm: TAboutForm
  Left = 260
  Top = 180
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'About Night Radio'
  ClientHeight = 300
  ClientWidth = 420
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  PixelsPerInch = 96
  Position = poScreenCenter
  object Sky: TVRXFill
    Left = 0
    Top = 0
    Width = 420
    Height = 190
    Align = alTop
    FillObject.Color = 5256491
    FillObject.EndColor = 2102287
  end
  object Arc: TVRXGraphicLabel
    Left = 30
    Top = 18
    Width = 360
    Height = 112
    AutoSize = False
    Caption = 'NIGHT RADIO'
    Factor = 4500
    FillObject.Color = 11730943
    FillObject.EndColor = 3381759
    Font.Charset = DEFAULT_CHARSET
    Font.Color = 1314058
    Font.Height = -52
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    FontFX.ShadowColor = clBlack
    FontFX.ShadowDepth = 3
    FontFX.Style = tdShadow
    Stretch = True
    Transform = tmHalfcircle
  end
  object Version: TVRXGraphicLabel
    Left = 110
    Top = 118
    Width = 200
    Height = 58
    AutoSize = False
    Caption = 'version seven'
    Factor = 4000
    FillObject.Color = clWhite
    FillObject.EndColor = 15130800
    Font.Charset = DEFAULT_CHARSET
    Font.Color = clWhite
    Font.Height = -28
    Font.Name = 'Tahoma'
    Font.Style = [fsBold]
    OutlineWidth = 0
    PerspectiveDepth = 80
    Stretch = True
    TransAttr = [taPerspective]
    Transform = tmNone
  end
  object Thanks: TLabel
    Left = 24
    Top = 206
    Width = 372
    Height = 34
    AutoSize = False
    Caption = 
      'Thanks to everybody who keeps a transmitter running through the n' +
      'ight.'
    WordWrap = True
  end
  object CloseButton: TButton
    Left = 330
    Top = 260
    Width = 78
    Height = 26
    Cancel = True
    Caption = 'Close'
    Default = True
    ModalResult = 1
    TabOrder = 0
  end
end
