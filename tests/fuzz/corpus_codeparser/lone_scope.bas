Public Sub A()
End Sub
Public
Public Sub B()
End Sub
