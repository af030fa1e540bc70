object OptionsForm: TOptionsForm
  Left = 240
  Top = 140
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Options'
  ClientHeight = 372
  ClientWidth = 468
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  PixelsPerInch = 96
  Position = poScreenCenter
  object Header: TVRXHeader
    Left = 0
    Top = 0
    Width = 468
    Height = 44
    Bevel.BorderColor = clBtnShadow
    Caption = 'Night Radio'
    Description = 'Changes are used as soon as they are confirmed.'
    FillObject.Color = clWindow
    FillObject.EndColor = clBtnFace
  end
  object Book: TVRXNoteBook
    Left = 12
    Top = 56
    Width = 444
    Height = 264
    ActivePage = SoundPage
    TabOrder = 0
    object GeneralPage: TVRXNoteBookPage
      Caption = '&General'
      object StartCheck: TCheckBox
        Left = 16
        Top = 16
        Width = 300
        Height = 19
        Caption = 'Start with the last &station'
        Checked = True
        State = cbChecked
        TabOrder = 0
      end
      object TrayCheck: TCheckBox
        Left = 16
        Top = 40
        Width = 300
        Height = 19
        Caption = 'Keep playing when the window is &closed'
        TabOrder = 1
      end
      object LanguageLabel: TLabel
        Left = 16
        Top = 76
        Width = 58
        Height = 15
        Caption = '&Language:'
        FocusControl = LanguageBox
      end
      object LanguageBox: TComboBox
        Left = 104
        Top = 72
        Width = 160
        Height = 23
        TabOrder = 2
        Text = 'English'
      end
    end
    object SoundPage: TVRXNoteBookPage
      Caption = '&Sound'
      object DevicePanel: TVRXHeaderPanel
        Left = 12
        Top = 12
        Width = 412
        Height = 92
        Bevel.Outer = bvLowered
        Caption = 'Device'
        TabOrder = 0
        object DeviceHelp: TVRXHeaderPanelButton
          Left = 390
          Top = 3
          Width = 18
          Height = 18
          Align = alRight
          Kind = hbHelp
        end
        object DeviceLabel: TLabel
          Left = 12
          Top = 44
          Width = 44
          Height = 15
          Caption = '&Output:'
          FocusControl = DeviceBox
        end
        object DeviceBox: TComboBox
          Left = 96
          Top = 40
          Width = 200
          Height = 23
          TabOrder = 0
          Text = 'Loudspeakers'
        end
      end
      object EffectPanel: TVRXCaptionPanel
        Left = 12
        Top = 116
        Width = 412
        Height = 104
        Bevel.Outer = bvLowered
        Caption = 'Effects'
        CaptionObject.Buttons = [pbExpand, pbHelp]
        TabOrder = 1
        object BassLabel: TLabel
          Left = 12
          Top = 14
          Width = 30
          Height = 15
          Caption = '&Bass:'
          FocusControl = BassBar
        end
        object BassBar: TTrackBar
          Left = 92
          Top = 8
          Width = 210
          Height = 30
          Position = 6
          TabOrder = 0
        end
        object EchoCheck: TCheckBox
          Left = 12
          Top = 48
          Width = 200
          Height = 19
          Caption = '&Room'
          TabOrder = 1
        end
      end
    end
    object NetworkPage: TVRXNoteBookPage
      Caption = '&Network'
      object ProxyCheck: TCheckBox
        Left = 16
        Top = 16
        Width = 300
        Height = 19
        Caption = 'Use a &proxy'
        TabOrder = 0
      end
      object ProxyEdit: TEdit
        Left = 32
        Top = 42
        Width = 240
        Height = 23
        TabOrder = 1
        Text = 'proxy.local:8080'
      end
    end
  end
  object OkButton: TButton
    Left = 292
    Top = 334
    Width = 78
    Height = 26
    Caption = 'OK'
    Default = True
    ModalResult = 1
    TabOrder = 1
  end
  object CancelButton: TButton
    Left = 378
    Top = 334
    Width = 78
    Height = 26
    Cancel = True
    Caption = 'Cancel'
    ModalResult = 2
    TabOrder = 2
  end
end
