VERSION 5.00
Begin VB.Form frmTally
   Caption         =   "Tally"
   ClientHeight    =   3195
   Begin VB.CommandButton cmdAdd
      Caption         =   "Add"
      BeginProperty Font
         Name            =   "Arial"
         Size            =   9
      EndProperty
   End
   Begin VB.Label lblTotal
      Caption         =   "0"
   End
End
Attribute VB_Name = "frmTally"
Attribute VB_GlobalNameSpace = False
Attribute VB_PredeclaredId = True
Option Explicit

Private Sub cmdAdd_Click()
    lblTotal.Caption = CStr(Val(lblTotal.Caption) + 1)
End Sub

Private Sub Form_Load()
    lblTotal.Caption = "0"
End Sub
