object ControlPanel: TControlPanel
  Left = 240
  Top = 160
  BorderStyle = bsDialog
  Caption = 'Line 4 - Filling machine'
  ClientHeight = 392
  ClientWidth = 584
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  PixelsPerInch = 96
  Position = poScreenCenter
  OnCreate = FormCreate
  object TitlePanel: TPanel
    Left = 0
    Top = 0
    Width = 584
    Height = 48
    Align = alTop
    BevelOuter = bvNone
    Color = 4009240
    TabOrder = 0
    object TitleLabel: TLabel
      Left = 16
      Top = 13
      Width = 246
      Height = 22
      Caption = 'Filling machine - Line 4'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clWhite
      Font.Height = -18
      Font.Name = 'Tahoma'
      Font.Style = [fsBold]
      ParentFont = False
    end
    object ClockLED: TVRXLEDLabel
      Left = 448
      Top = 9
      Width = 128
      Height = 30
      Alignment = taRightJustify
      Anchors = [akTop, akRight]
      AutoSize = False
      Caption = '12:45:07'
      Color = 4009240
      LED.ActiveColor = clAqua
      LED.InActiveColor = 4009240
      LED.HorzSize = 7
      LED.VertSize = 7
    end
  end
  object SpeedPanel: TPanel
    Left = 16
    Top = 64
    Width = 272
    Height = 136
    BevelOuter = bvLowered
    Color = clBlack
    TabOrder = 1
    object SpeedLED: TVRXLEDLabel
      Left = 24
      Top = 40
      Width = 188
      Height = 72
      Alignment = taRightJustify
      AutoSize = False
      Caption = '248.5'
      Color = clBlack
      LED.HorzSize = 22
      LED.Thickness = 6
      LED.VertSize = 20
      OnClick = SpeedLEDClick
    end
    object SpeedLabel: TLabel
      Left = 16
      Top = 12
      Width = 84
      Height = 15
      Caption = 'Speed'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clSilver
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = []
      ParentFont = False
    end
    object SpeedUnit: TLabel
      Left = 220
      Top = 94
      Width = 40
      Height = 15
      Caption = 'b/min'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clSilver
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = []
      ParentFont = False
    end
  end
  object TempPanel: TPanel
    Left = 304
    Top = 64
    Width = 264
    Height = 136
    BevelOuter = bvLowered
    Color = clBlack
    TabOrder = 2
    object TempLED: TVRXLEDLabel
      Left = 24
      Top = 40
      Width = 216
      Height = 72
      Alignment = taRightJustify
      AutoSize = False
      Caption = '21.8'#176'C'
      Color = clBlack
      LED.ActiveColor = 3160319
      LED.InActiveColor = 790096
      LED.HorzSize = 22
      LED.Thickness = 6
      LED.VertSize = 20
    end
    object TempLabel: TLabel
      Left = 16
      Top = 12
      Width = 140
      Height = 15
      Caption = 'Product temperature'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clSilver
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = []
      ParentFont = False
    end
  end
  object StatusPanel: TPanel
    Left = 16
    Top = 216
    Width = 552
    Height = 112
    BevelOuter = bvLowered
    Color = clBlack
    TabOrder = 3
    object StatusLED: TVRXLEDLabel
      Left = 16
      Top = 16
      Width = 520
      Height = 44
      AutoSize = False
      Caption = 'FILLING BATCH 0017'
      Color = clBlack
      LED.ActiveColor = 2678527
      LED.InActiveColor = 1973790
      LED.HorzSize = 14
      LED.Thickness = 3
      LED.VertSize = 13
    end
    object CountLabel: TLabel
      Left = 16
      Top = 78
      Width = 84
      Height = 15
      Caption = 'Bottles today'
      Font.Charset = DEFAULT_CHARSET
      Font.Color = clSilver
      Font.Height = -12
      Font.Name = 'Tahoma'
      Font.Style = []
      ParentFont = False
    end
    object CountLED: TVRXLEDLabel
      Left = 112
      Top = 70
      Width = 145
      Height = 30
      AutoSize = False
      Caption = '00 48 213'
      Color = clBlack
      LED.ActiveColor = 5828664
      LED.InActiveColor = 1326602
      LED.HorzSize = 7
      LED.VertSize = 7
    end
    object FaultLED: TVRXLEDLabel
      Left = 440
      Top = 70
      Width = 96
      Height = 30
      Alignment = taRightJustify
      AutoSize = False
      Caption = 'FAULT'
      Color = clBlack
      Enabled = False
      LED.ActiveColor = clRed
      LED.DisabledDigits = True
      LED.InActiveColor = 1973790
      LED.HorzSize = 7
      LED.VertSize = 7
    end
  end
  object StartButton: TButton
    Left = 16
    Top = 348
    Width = 96
    Height = 28
    Anchors = [akLeft, akBottom]
    Caption = '&Start'
    Default = True
    TabOrder = 4
    OnClick = StartButtonClick
  end
  object StopButton: TButton
    Left = 120
    Top = 348
    Width = 96
    Height = 28
    Anchors = [akLeft, akBottom]
    Caption = 'S&top'
    TabOrder = 5
    OnClick = StopButtonClick
  end
  object CloseButton: TButton
    Left = 472
    Top = 348
    Width = 96
    Height = 28
    Anchors = [akRight, akBottom]
    Cancel = True
    Caption = 'Close'
    ModalResult = 2
    TabOrder = 6
  end
  object PollTimer: TTimer
    Interval = 250
    OnTimer = PollTimerTimer
    Left = 400
    Top = 344
  end
end
