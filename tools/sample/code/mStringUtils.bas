Attribute VB_Name = "mStringUtils"
'---------------------------------------------------------------------------
' mStringUtils
' Small string helpers that VB5 lacks and VB6 has only in part.
'---------------------------------------------------------------------------
Option Explicit

Public Enum ePadSide
    padLeft = 0
    padRight = 1
    padBoth = 2
End Enum

Public Type tPathParts
    Folder As String
    FileName As String
    Extension As String
End Type

Private Const PATH_SEPARATOR As String = "\"
Private Const WORD_BREAKS As String = " -'("

' Pads strText to lngWidth with strFill on the chosen side; longer text is kept whole.
Public Function PadText(ByVal strText As String, ByVal lngWidth As Long, _
                        Optional ByVal eSide As ePadSide = padRight, _
                        Optional ByVal strFill As String = " ") As String
    Dim lngMissing As Long
    lngMissing = lngWidth - Len(strText)
    If lngMissing <= 0 Or Len(strFill) = 0 Then
        PadText = strText
        Exit Function
    End If
    Select Case eSide
    Case padLeft
        PadText = String$(lngMissing, strFill) & strText
    Case padRight
        PadText = strText & String$(lngMissing, strFill)
    Case padBoth
        PadText = String$(lngMissing \ 2, strFill) & strText & _
                  String$(lngMissing - lngMissing \ 2, strFill)
    End Select
End Function

Public Function CountOccurrences(ByVal strText As String, ByVal strFind As String, _
                                 Optional ByVal eCompare As VbCompareMethod = vbBinaryCompare) As Long
    Dim lngAt As Long
    Dim lngCount As Long
    If Len(strFind) = 0 Then Exit Function
    lngAt = InStr(1, strText, strFind, eCompare)
    Do While lngAt > 0
        lngCount = lngCount + 1
        lngAt = InStr(lngAt + Len(strFind), strText, strFind, eCompare)
    Loop
    CountOccurrences = lngCount
End Function

' "the old MILL road" becomes "The Old Mill Road".
Public Function ProperCase(ByVal strText As String) As String
    Dim lngIndex As Long
    Dim blnStart As Boolean
    Dim strChar As String
    blnStart = True
    For lngIndex = 1 To Len(strText)
        strChar = Mid$(strText, lngIndex, 1)
        If blnStart Then
            Mid$(strText, lngIndex, 1) = UCase$(strChar)
        Else
            Mid$(strText, lngIndex, 1) = LCase$(strChar)
        End If
        blnStart = (InStr(WORD_BREAKS, strChar) > 0)
    Next lngIndex
    ProperCase = strText
End Function

Public Sub SplitPath(ByVal strPath As String, ByRef tParts As tPathParts)
    Dim lngSlash As Long
    Dim lngDot As Long
    lngSlash = InStrRev(strPath, PATH_SEPARATOR)
    tParts.Folder = Left$(strPath, lngSlash)
    tParts.FileName = Mid$(strPath, lngSlash + 1)
    lngDot = InStrRev(tParts.FileName, ".")
    If lngDot > 0 Then
        tParts.Extension = Mid$(tParts.FileName, lngDot + 1)
    Else
        tParts.Extension = ""
    End If
End Sub
