object SetupForm: TSetupForm
  Left = 220
  Top = 160
  BorderIcons = [biSystemMenu]
  BorderStyle = bsDialog
  Caption = 'Set up Night Radio'
  ClientHeight = 330
  ClientWidth = 540
  Color = clBtnFace
  Font.Charset = DEFAULT_CHARSET
  Font.Color = clWindowText
  Font.Height = -12
  Font.Name = 'Tahoma'
  Font.Style = []
  PixelsPerInch = 96
  Position = poScreenCenter
  object Setup: TVRXAssist
    Left = 0
    Top = 0
    Width = 540
    Height = 330
    ActivePage = FolderPage
    Align = alClient
    Buttons = [abHelp, abBack, abNext, abCancel]
    FinishCaption = '&Install'
    StepsWidth = 132
    TabOrder = 0
    OnFinish = SetupFinish
    object WelcomePage: TVRXAssistPage
      Caption = 'Welcome'
      Description = 'What is about to be installed.'
      object WelcomeTitle: TVRXGraphicLabel
        Left = 24
        Top = 16
        Width = 354
        Height = 66
        AutoSize = False
        Caption = 'Night Radio'
        Factor = 3000
        FillObject.Color = clHighlight
        FillObject.EndColor = clNavy
        Font.Charset = DEFAULT_CHARSET
        Font.Color = clNavy
        Font.Height = -40
        Font.Name = 'Tahoma'
        Font.Style = [fsBold]
        FontFX.ShadowDepth = 2
        FontFX.Style = tdShadow
      end
      object WelcomeText: TLabel
        Left = 24
        Top = 96
        Width = 354
        Height = 60
        AutoSize = False
        Caption = 
          'This wizard copies Night Radio to your computer. Close other pro' +
          'grams that play sound before you go on.'
        WordWrap = True
      end
    end
    object FolderPage: TVRXAssistPage
      Caption = 'Folder'
      Description = 'Where the program and its stations are kept.'
      object FolderLabel: TLabel
        Left = 24
        Top = 24
        Width = 102
        Height = 15
        Caption = '&Install to this folder:'
        FocusControl = FolderEdit
      end
      object FolderEdit: TEdit
        Left = 24
        Top = 44
        Width = 268
        Height = 23
        Anchors = [akLeft, akTop, akRight]
        TabOrder = 0
        Text = '/opt/night-radio'
      end
      object BrowseButton: TButton
        Left = 300
        Top = 43
        Width = 84
        Height = 25
        Anchors = [akTop, akRight]
        Caption = '&Browse...'
        TabOrder = 1
      end
      object MenuCheck: TCheckBox
        Left = 24
        Top = 88
        Width = 260
        Height = 19
        Caption = 'Add an entry to the &menu'
        Checked = True
        State = cbChecked
        TabOrder = 2
      end
      object DesktopCheck: TCheckBox
        Left = 24
        Top = 112
        Width = 260
        Height = 19
        Caption = 'Put a shortcut on the &desktop'
        TabOrder = 3
      end
    end
    object OptionsPage: TVRXAssistPage
      Caption = 'Stations'
      Description = 'Which lists of stations come with it.'
      object StationGroup: TVRXCaptionPanelGroup
        Left = 16
        Top = 12
        Width = 376
        Height = 200
        TabOrder = 0
        object JazzPanel: TVRXCaptionPanel
          Left = 4
          Top = 4
          Width = 368
          Height = 88
          Caption = 'Jazz'
          TabOrder = 0
          object JazzCheck: TCheckBox
            Left = 12
            Top = 8
            Width = 240
            Height = 19
            Caption = '48 stations from 12 countries'
            Checked = True
            State = cbChecked
            TabOrder = 0
          end
          object JazzLocal: TCheckBox
            Left = 12
            Top = 32
            Width = 240
            Height = 19
            Caption = 'Local stations first'
            TabOrder = 1
          end
        end
        object NewsPanel: TVRXCaptionPanel
          Left = 4
          Top = 96
          Width = 368
          Height = 22
          Caption = 'News'
          ExpandedSize = 88
          TabOrder = 1
          Expanded = False
        end
        object ClassicPanel: TVRXCaptionPanel
          Left = 4
          Top = 122
          Width = 368
          Height = 22
          Caption = 'Classical music'
          ExpandedSize = 88
          TabOrder = 2
          Expanded = False
        end
      end
    end
    object ReadyPage: TVRXAssistPage
      Caption = 'Ready'
      Description = 'Everything is known; nothing has been copied yet.'
      object ReadyText: TLabel
        Left = 24
        Top = 24
        Width = 350
        Height = 32
        AutoSize = False
        Caption = 'Install copies the files now. It takes about a minute.'
        WordWrap = True
      end
    end
  end
end
