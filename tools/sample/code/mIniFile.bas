Attribute VB_Name = "mIniFile"
'---------------------------------------------------------------------------
' mIniFile
' Reads and writes values of an INI file through the profile API.
'---------------------------------------------------------------------------
Option Explicit

Private Declare Function GetPrivateProfileString Lib "kernel32" _
    Alias "GetPrivateProfileStringA" (ByVal lpApplicationName As String, _
    ByVal lpKeyName As Any, ByVal lpDefault As String, _
    ByVal lpReturnedString As String, ByVal nSize As Long, _
    ByVal lpFileName As String) As Long
Private Declare Function WritePrivateProfileString Lib "kernel32" _
    Alias "WritePrivateProfileStringA" (ByVal lpApplicationName As String, _
    ByVal lpKeyName As Any, ByVal lpString As Any, _
    ByVal lpFileName As String) As Long

Private Const BUFFER_SIZE As Long = 2048

' Returns the value of strKey in strSection, or strDefault when it is missing.
Public Function ReadIniString(ByVal strFile As String, ByVal strSection As String, _
                              ByVal strKey As String, _
                              Optional ByVal strDefault As String = "") As String
    Dim strBuffer As String
    Dim lngLength As Long
    strBuffer = String$(BUFFER_SIZE, vbNullChar)
    lngLength = GetPrivateProfileString(strSection, strKey, strDefault, _
                                        strBuffer, BUFFER_SIZE, strFile)
    ReadIniString = Left$(strBuffer, lngLength)
End Function

Public Function ReadIniLong(ByVal strFile As String, ByVal strSection As String, _
                            ByVal strKey As String, _
                            Optional ByVal lngDefault As Long = 0) As Long
    Dim strValue As String
    strValue = ReadIniString(strFile, strSection, strKey, CStr(lngDefault))
    If IsNumeric(strValue) Then
        ReadIniLong = CLng(strValue)
    Else
        ReadIniLong = lngDefault
    End If
End Function

Public Function WriteIniString(ByVal strFile As String, ByVal strSection As String, _
                               ByVal strKey As String, ByVal strValue As String) As Boolean
    WriteIniString = (WritePrivateProfileString(strSection, strKey, strValue, strFile) <> 0)
End Function

' Removes a whole section: the API deletes it when the key is a null pointer.
Public Sub DeleteIniSection(ByVal strFile As String, ByVal strSection As String)
    WritePrivateProfileString strSection, 0&, 0&, strFile
End Sub
