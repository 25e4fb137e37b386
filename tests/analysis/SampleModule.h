#pragma once

#include <QString>

namespace qs::test {

// A text written with "\n" between lines, given the Windows line ends the IDE saves.
inline QString crlf(const char* text) {
    return QString::fromUtf8(text).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

// A class module as the IDE saves it: its header block, attributes, comments above and behind
// headers, a continued declaration, module variables, a property pair, a body holding Dim, Const
// and a blank line, and procedures marked Static, Default or Friend.
inline const QString kClass = crlf(R"(VERSION 1.0 CLASS
BEGIN
  MultiUse = -1  'True
END
Attribute VB_Name = "cPrinterInfo"
Option Explicit

' Win32 calls
Private Declare Function GetDefaultPrinter Lib "winspool.drv" Alias "GetDefaultPrinterA" _
    (ByVal pszBuffer As String, pcchBuffer As Long) As Long
Private Declare Function GetTickCount Lib "kernel32" () As Long ' ticks
Global Const APP_NAME As String = "Spool"
Private Const MAX_PATH As Long = 260   ' buffer size
Private mstrName As String
Dim mlngCount As Long

Private Type PRINTER_INFO ' one printer
    pName As String
End Type

Public Enum PrintState
    psIdle = 0
End Enum

' The printer's name
Public Property Get Name() As String
    Name = mstrName
End Property

Public Property Let Name(ByVal strValue As String)
    mstrName = strValue
End Property

Public Default Property Get Item() As String
End Property

Public Function Refresh() As Boolean ' comment behind the header
    Dim blnOk As Boolean
    Const RETRIES = 3

    Refresh = True
End Function

Private Static Sub Tally()
    mlngCount = mlngCount + 1
End Sub

Static Function Counter() As Long
    Dim n As Long
End Function

Friend Sub Reset()
    mstrName = ""
End Sub

Private Sub Class_Initialize()
    mstrName = "Default"
End Sub)");

} // namespace qs::test
