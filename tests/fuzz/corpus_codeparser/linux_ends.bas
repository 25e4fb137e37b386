Attribute VB_Name = "mLinux"
Sub A()

End Sub
Const B = 1 _
  + 2
Type T
  x As Long
End Type
