VERSION 5.00
Object = "{3B9C5A14-71D8-4E26-B0F3-92C6D1A7E845}#1.0#0"; "Orvanta28.ocx"
Begin VB.UserControl ctlStockBox 
   ClientHeight    =   960
   ClientLeft      =   0
   ClientTop       =   0
   ClientWidth     =   3375
   ScaleHeight     =   960
   ScaleWidth      =   3375
   Begin VB.CommandButton cmdStep 
      Caption         =   "+"
      Height          =   285
      Index           =   0
      Left            =   2040
      TabIndex        =   2
      ToolTipText     =   "One more – un de plus – uno más"
      Top             =   360
      Width           =   375
   End
   Begin VB.CommandButton cmdStep 
      Caption         =   "–"
      Height          =   285
      Index           =   1
      Left            =   2400
      TabIndex        =   3
      ToolTipText     =   "One fewer"
      Top             =   360
      Width           =   375
   End
   Begin VB.TextBox txtCount 
      Alignment       =   1  'Right Justify
      BeginProperty Font 
         Name            =   "Courier New"
         Size            =   9.75
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   285
      Left            =   1080
      MaxLength       =   4
      TabIndex        =   1
      Text            =   "0"
      Top             =   360
      Width           =   855
   End
   Begin VB.CheckBox chkOut 
      Caption         =   "Sold out"
      Enabled         =   0   'False
      Height          =   255
      Left            =   1080
      TabIndex        =   4
      Top             =   660
      Value           =   1  'Checked
      Width           =   1215
   End
   Begin Orvanta.ctlUniLabel lblCaption 
      Height          =   255
      Left            =   0
      TabIndex        =   0
      Top             =   0
      Width           =   3375
      _ExtentX        =   5953
      _ExtentY        =   450
      BackStyle       =   0
      Caption         =   "Bestand · stock · existencias"
   End
   Begin VB.Label lblCopies 
      Caption         =   "Copies"
      Height          =   255
      Left            =   0
      TabIndex        =   5
      Top             =   390
      Width           =   975
   End
End
Attribute VB_Name = "ctlStockBox"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = False
Option Explicit

Public Event Change(ByVal lCount As Long)

Public Property Get Count() As Long
    Count = CLng(Val(txtCount.Text))
End Property

Public Property Let Count(ByVal lCount As Long)
    If lCount < 0 Then lCount = 0
    txtCount.Text = CStr(lCount)
    PropertyChanged "Count"
End Property

Private Sub cmdStep_Click(Index As Integer)
    If Index = 0 Then
        txtCount_KeyPress Asc("+")
    Else
        txtCount_KeyPress Asc("-") ' stops at 0
    End If
End Sub

Private Sub txtCount_Change()
    chkOut.Value = Abs(Val(txtCount.Text) = 0)
    RaiseEvent Change(Count)
End Sub

Private Sub txtCount_DblClick()
    Count = 0
End Sub

Private Sub txtCount_KeyPress(KeyAscii As Integer)
    Select Case KeyAscii
        Case Asc("+"): Count = Count + 1: KeyAscii = 0
        Case Asc("-"): Count = Count - 1: KeyAscii = 0
        Case Asc("0"): If Count = 0 Then Call txtCount_DblClick(): KeyAscii = 0
        Case Else: KeyAscii = DigitsOnly(KeyAscii)
    End Select
End Sub

Private Sub UserControl_ReadProperties(PropBag As PropertyBag)
    Count = PropBag.ReadProperty("Count", 0)
    lblCaption.Caption = PropBag.ReadProperty("Caption", "Stock")
End Sub

Private Sub UserControl_WriteProperties(PropBag As PropertyBag)
    PropBag.WriteProperty "Count", Count, 0
    PropBag.WriteProperty "Caption", lblCaption.Caption, "Stock"
End Sub
