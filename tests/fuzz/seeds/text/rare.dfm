inherited Rare: TRare[ -3 ]
  Hex = $FF
  HexBig = $FFFFFFFF
  Smallest = -9223372036854775808
  Unsigned = 18446744073709551615
  Zeros = 00012
  Money = 123456c
  Day = 45000.5d
  Half = 0.5S
  Point = 1.
  Power = 25E-2
  Nothing = Null
  Lower = false
  Font. Name = 'x'
  Bare = #
  Astral = #128512
  Set = [ a,b
    ,c ]
  Commas = ('a' 'b' + 'c' #13 d.e)
  Indexed = <item[7]X=1 end item [ -2 ] end>
  Hexes = { 0a 0B
fF }
  item = 1
end
