object Mixed: TMixed
  One = 1
  Two = 'x'   

  Three   =  [a]
	Four=4
  object Inner: TInner 
  end  
end

