object %F%: T%F%
  Left = 1
{$IFNDEF X}  B = bs{$ENDIF}
  P.{$X}Q = 1
  C = <{$A}item X={$B}1 end>
  L = ({$C}1 {$D})
  S = [{$E}a]
{$IF}
end
