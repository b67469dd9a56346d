VERSION 5.00
Object = "{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0"; "Orvanta31.ocx"
Begin VB.UserControl ctlMoney 
   BackStyle       =   0  'Transparent
   ClientHeight    =   285
   ClientLeft      =   0
   ClientTop       =   0
   ClientWidth     =   1695
   ScaleHeight     =   285
   ScaleWidth      =   1695
Begin Orvanta.ctlUniTextBoxXP txtAmount
      Alignment       =   1  'Right Justify
      BeginProperty Font 
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   285
      Left            =   0
      TabIndex        =   0
      Text            =   "0,00 €"
Tip="Betrag – montant – importe"
      Top             =   0
      Width           =   1335
   End
   Begin Orvanta.ctlUniButtonImageXP cmdRound 
      Height          =   285
      Left            =   1320
      TabIndex        =   1
      ToolTipText     =   "Round to 5 cents"
      Top             =   0
      Width           =   375
      _ExtentX        =   661
      _ExtentY        =   503
      Caption         =   "½"
   End
End
Attribute VB_Name = "ctlMoney"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = True
Attribute VB_PredeclaredId = False
Attribute VB_Exposed = False
Option Explicit

Private mAmount As Currency

Public Property Get Amount() As Currency
    Amount = mAmount
End Property

' A call from a property is not completed: this one has to be changed by hand.
Public Property Let Amount(ByVal cAmount As Currency)
    mAmount = cAmount
    txtAmount.Text = MoneyText(mAmount)
    txtAmount_Click
    PropertyChanged "Amount"
End Property

Private Sub cmdRound_Click()
    Amount = CCur(CLng(mAmount * 20) / 20)
    Call txtAmount_Click( 0) ' shows the end of the amount
End Sub

Private Sub txtAmount_Click(Button As Integer)
    txtAmount.SelStart = Len(txtAmount.Text)
End Sub

Private Sub txtAmount_DblClick(Button As Integer)
    txtAmount.SelStart = 0
    txtAmount.SelLength = Len(txtAmount.Text)
End Sub

Private Sub txtAmount_KeyPress(KeyAscii As Integer, Shift As Integer)
    If KeyAscii = vbKeyReturn Then Amount = MoneyValue(txtAmount.Text)
End Sub

Private Sub UserControl_EnterFocus()
    If Len(txtAmount.Text) = 0 Then Amount = 0
    txtAmount_DblClick  0' as "select all" would
End Sub

Private Sub UserControl_Resize()
    On Error Resume Next
    txtAmount.Width = ScaleWidth - cmdRound.Width
    cmdRound.Left = txtAmount.Width
End Sub

Private Sub UserControl_ReadProperties(PropBag As PropertyBag)
    mAmount = PropBag.ReadProperty("Amount", 0)
    txtAmount.Text = MoneyText(mAmount)
End Sub

Private Sub UserControl_WriteProperties(PropBag As PropertyBag)
    PropBag.WriteProperty "Amount", mAmount, 0
End Sub


