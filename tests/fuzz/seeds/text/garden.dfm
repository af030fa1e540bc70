object GardenForm: TGardenForm
  Left = 192
  Top = -7
  ActiveControl = PlotGrid
  Anchors = [akLeft, akTop, akRight]
  AutoScroll = False
  BorderIcons = []
  Caption = 'Tom'#39's garden'#13#10'second line'
  Color = clBtnFace
  Constraints.MaxHeight = 70000
  Font.Charset = DEFAULT_CHARSET
  Font.Name = 'Tahoma'
  Menu = nil
  BigTag = 4294967296
  Opacity = 0.547337048607005300
  Planted = 40273.000000000000000000
  Hint = 
    'A hint that is longer than one line of a form file and therefore' +
    ' goes on here, with an apostrophe ('#39') and a tab ('#9').'
  Wide = 'caf'#233' '#8364' '#55357#56832
  OnCreate = FormCreate
  DataSource = Tools.SeedSource
  object Bed1: TBed [2]
    Depth = 128
    Rows.Strings = (
      'carrots'
      ''
      'peas'
      
        'a line of a list that is far too long to stand on one line of th' +
        'e file'
      #39'quoted'#39)
    Mixed = (
      1
      -200
      2.500000000000000000
      clGreen
      True
      nil
      (
        (
          'deep')
        ())
      [sun, shade]
      {0102})
    Sorts = <
      item
        Title = 'Early'
        Weeks = <
          item
          end
          item
            Number = 17
          end>
      end
      item
        Title = 'Late'
        Weeks = <>
      end>
    Picture.Data = {
      000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F
      202122}
    Exact.Data = {
      000102030405060708090A0B0C0D0E0F101112131415161718191A1B1C1D1E1F}
    Small.Data = {CAFE}
    Empty.Data = {}
  end
  object TUnnamed
  end
  inherited Shed1: TShed
    Left = 0
    inline ToolFrame1: TToolFrame [0]
      Left = 1
      inherited Label1: TLabel
        Caption = ''
      end
    end
  end
end
