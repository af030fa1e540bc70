object Cyrillic: TCyrillic
  Caption = 'Привет'
  Font.Charset = RUSSIAN_CHARSET
  Hint = 'мир'#13#10
end
