Sub A()
   End Sub   
Sub B()
End Sub ' done
Sub C()
end sub
Sub D()
	End Sub
Sub E()
Const K = 1
    y = 2
End Sub
  Public Sub Hidden()
  End Sub
Dim 
Dim  Sub
