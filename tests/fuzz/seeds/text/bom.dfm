object WithMark: TWithMark
  Caption = 'grün'
  Left = 5
end
