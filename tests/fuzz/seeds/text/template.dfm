object %FormName%: T%FormName%
  Caption = '%Caption%'
  Left = 0
end