Attribute VB_Name = "mShapes"
Option Explicit

' Drawing calls
Private Declare Function Rectangle Lib "gdi32" (ByVal hdc As Long, _
    ByVal x1 As Long, ByVal y1 As Long, ByVal x2 As Long, ByVal y2 As Long) As Long
Public Const SHAPE_MAX As Long = 64 ' table size
Global Const SHAPE_NAME = "Shape" & _
    "s"
Dim mlngShapes As Long

Private Type SHAPEPOINT
    x As Single
    y As Single
End Type

Public Enum ShapeKind
    skSquare = 1
    skCircle = 2
End Enum

' Area of a square.
Public Function SquareArea(ByVal side As Single) As Single ' no checks
    Dim result As Single
    Const TWO = 2

    result = side * side
    SquareArea = result
End Function

Private Sub Count()
    mlngShapes = mlngShapes + 1
End Sub
