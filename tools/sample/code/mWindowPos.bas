Attribute VB_Name = "mWindowPos"
'---------------------------------------------------------------------------
' mWindowPos
' Keeps a form above the others and centres it over its owner.
'---------------------------------------------------------------------------
Option Explicit

Private Type RECT
    Left As Long
    Top As Long
    Right As Long
    Bottom As Long
End Type

Private Declare Function SetWindowPos Lib "user32" (ByVal hWnd As Long, _
    ByVal hWndInsertAfter As Long, ByVal X As Long, ByVal Y As Long, _
    ByVal cx As Long, ByVal cy As Long, ByVal wFlags As Long) As Long
Private Declare Function GetWindowRect Lib "user32" (ByVal hWnd As Long, _
    lpRect As RECT) As Long

Private Const HWND_TOPMOST As Long = -1
Private Const HWND_NOTOPMOST As Long = -2
Private Const SWP_NOSIZE As Long = &H1
Private Const SWP_NOMOVE As Long = &H2
Private Const SWP_NOACTIVATE As Long = &H10

Public Sub SetAlwaysOnTop(ByVal frm As Form, ByVal blnOnTop As Boolean)
    Dim lngAfter As Long
    If blnOnTop Then
        lngAfter = HWND_TOPMOST
    Else
        lngAfter = HWND_NOTOPMOST
    End If
    SetWindowPos frm.hWnd, lngAfter, 0, 0, 0, 0, SWP_NOMOVE Or SWP_NOSIZE Or SWP_NOACTIVATE
End Sub

' Centres frm over the window hWndOwner; returns False when the owner is gone.
Public Function CenterOverOwner(ByVal frm As Form, ByVal hWndOwner As Long) As Boolean
    Dim tOwner As RECT
    Dim lngLeft As Long
    Dim lngTop As Long
    If GetWindowRect(hWndOwner, tOwner) = 0 Then Exit Function
    lngLeft = (tOwner.Left + tOwner.Right) \ 2 * Screen.TwipsPerPixelX - frm.Width \ 2
    lngTop = (tOwner.Top + tOwner.Bottom) \ 2 * Screen.TwipsPerPixelY - frm.Height \ 2
    If lngLeft < 0 Then lngLeft = 0
    If lngTop < 0 Then lngTop = 0
    frm.Move lngLeft, lngTop
    CenterOverOwner = True
End Function
