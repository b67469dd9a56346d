VERSION 5.00
Object = "{3B9C5A14-71D8-4E26-B0F3-92C6D1A7E845}#1.0#0"; "Orvanta28.ocx"
Begin VB.Form frmOrder 
   Caption         =   "Order – Bestellung – Commande"
   ClientHeight    =   5160
   ClientLeft      =   60
   ClientTop       =   630
   ClientWidth     =   7455
   KeyPreview      =   -1  'True
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   ScaleHeight     =   5160
   ScaleWidth      =   7455
   StartUpPosition =   1  'CenterOwner
   Begin Orvanta.ctlUTF8Menu mnuUnicode 
      Left            =   6840
      Top             =   4560
      _ExtentX        =   847
      _ExtentY        =   847
      UTF8Strings     =   0   'False
   End
   Begin VB.Timer tmrClock 
      Interval        =   1000
      Left            =   6240
      Top             =   4560
   End
   Begin VB.Frame fraDelivery 
      Caption         =   "Delivery"
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   1815
      Left            =   120
      TabIndex        =   13
      Top             =   3000
      Width           =   4695
      Begin VB.Frame fraWhen 
         Caption         =   "When"
         Height          =   1455
         Left            =   2280
         TabIndex        =   17
         Top             =   240
         Width           =   2295
         Begin VB.OptionButton optNow 
            Caption         =   "As soon as possible"
            Height          =   255
            Left            =   120
            TabIndex        =   18
            Top             =   360
            Value           =   -1  'True
            Width           =   2055
         End
         Begin VB.OptionButton optLater 
            Caption         =   "With the next order"
            Height          =   255
            Left            =   120
            TabIndex        =   19
            ToolTipText     =   "Collected once a week, on Thursdays"
            Top             =   720
            Width           =   2055
         End
         Begin VB.CheckBox chkExpress 
            Caption         =   "Express (+ 4 €)"
            Enabled         =   0   'False
            Height          =   255
            Left            =   120
            TabIndex        =   20
            Top             =   1080
            Value           =   0  'Unchecked
            Width           =   2055
         End
      End
      Begin VB.ComboBox cboCarrier 
         Height          =   315
         Left            =   120
         Style           =   0  'Dropdown Combo
         TabIndex        =   14
         Text            =   "Fahrradkurier"
         ToolTipText     =   "Any carrier will do"
         Top             =   360
         Width           =   2055
      End
      Begin VB.ComboBox cboCountry 
         Height          =   1230
         Left            =   120
         Style           =   1  'Simple Combo
         TabIndex        =   15
         Text            =   "Österreich"
         Top             =   720
         Width           =   2055
      End
   End
   Begin VB.TextBox txtQty 
      Alignment       =   1  'Right Justify
      Height          =   285
      Index           =   0
      Left            =   120
      MaxLength       =   3
      TabIndex        =   3
      Text            =   "1"
      ToolTipText     =   "+ and – change the number of copies"
      Top             =   960
      Width           =   615
   End
   Begin VB.TextBox txtQty 
      Alignment       =   1  'Right Justify
      Height          =   285
      Index           =   1
      Left            =   120
      MaxLength       =   3
      TabIndex        =   5
      Top             =   1320
      Width           =   615
   End
   Begin VB.TextBox txtQty 
      Alignment       =   1  'Right Justify
      Height          =   285
      Index           =   2
      Left            =   120
      MaxLength       =   3
      TabIndex        =   7
      Top             =   1680
      Width           =   615
   End
   Begin VB.TextBox txtCustomer 
      Height          =   285
      Left            =   1320
      TabIndex        =   1
      Text            =   "Señora Muñoz"
      Top             =   480
      Width           =   3495
   End
   Begin Orvanta.ctlUniComboBoxXP cboTitle 
      Height          =   315
      Index           =   0
      Left            =   840
      TabIndex        =   4
      ToolTipText     =   "Title to order"
      Top             =   960
      Width           =   6495
      _ExtentX        =   11456
      _ExtentY        =   556
      Style           =   1
      Locked          =   -1  'True
   End
   Begin Orvanta.ctlUniComboBoxXP cboTitle 
      Height          =   315
      Index           =   1
      Left            =   840
      TabIndex        =   6
      Top             =   1320
      Width           =   6495
      _ExtentX        =   11456
      _ExtentY        =   556
      Style           =   3
   End
   Begin Orvanta.ctlUniComboBoxXP cboTitle 
      Height          =   315
      Index           =   2
      Left            =   840
      TabIndex        =   8
      Top             =   1680
      Width           =   6495
      _ExtentX        =   11456
      _ExtentY        =   556
   End
   Begin Orvanta.ctlUniButtonXP cmdPlace 
      Height          =   375
      Left            =   4920
      TabIndex        =   9
      Top             =   3120
      Width           =   2415
      _ExtentX        =   4260
      _ExtentY        =   661
      Caption         =   "&Place order"
   End
   Begin VB.CommandButton cmdClose 
      Cancel          =   -1  'True
      Caption         =   "Schließen"
      Height          =   375
      Left            =   4920
      TabIndex        =   10
      ToolTipText     =   "Close – “Fermer”"
      Top             =   3600
      Width           =   2415
   End
   Begin Bookshop.ctlMoney monTotal 
      Height          =   285
      Left            =   5640
      TabIndex        =   11
      ToolTipText     =   "Sum of all lines"
      Top             =   2160
      Width           =   1695
      _ExtentX        =   2990
      _ExtentY        =   503
   End
   Begin Orvanta.ctlUniLabel lblCustomer 
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   510
      Width           =   1095
      _ExtentX        =   1931
      _ExtentY        =   450
      Caption         =   "&Kunde · Client"
   End
   Begin VB.Label lblTotal 
      Alignment       =   1  'Right Justify
      Caption         =   "Total"
      Height          =   255
      Left            =   4560
      TabIndex        =   12
      Top             =   2190
      Width           =   975
   End
   Begin VB.Label lblClock 
      BackStyle       =   0  'Transparent
      Caption         =   "00:00"
      Height          =   255
      Left            =   6360
      TabIndex        =   2
      Top             =   120
      Width           =   975
   End
   Begin VB.Menu mnuOrder 
      Caption         =   "&Order"
      Begin VB.Menu mnuOrderPlace 
         Caption         =   "&Place"
         Shortcut        =   {F9}
      End
      Begin VB.Menu mnuOrderClear 
         Caption         =   "&Clear…"
      End
   End
End
Attribute VB_Name = "frmOrder"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Const LAST_LINE As Integer = 2

Private Declare Function GetTickCount Lib "kernel32" () As Long

Private mStarted As Long

' Opens the form with one title on the first line.
Public Sub ShowFor(ByVal sIsbn As String)
    Dim lBook As Long
    Dim i As Integer

    For i = 0 To LAST_LINE
        For lBook = 0 To gBookCount - 1
            cboTitle(i).AddItem gBooks(lBook).Isbn & "  " & gBooks(lBook).Title
        Next lBook
    Next i
    cboTitle(0).ListIndex = FindBook(sIsbn)
    txtQty_DblClick 0 ' one copy to start with
    mStarted = GetTickCount()
    Show vbModal, frmMain
End Sub

Private Sub Form_KeyDown(KeyCode As Integer, Shift As Integer)
    If KeyCode = vbKeyF9 Then PlaceOrder
End Sub

Private Sub cmdPlace_Click()
    PlaceOrder
End Sub

Private Sub cmdClose_Click()
    Unload Me
End Sub

Private Sub mnuOrderPlace_Click()
    PlaceOrder
End Sub

Private Sub mnuOrderClear_Click()
    Dim i As Integer

    For i = 0 To LAST_LINE
        Call txtQty_Click(i): txtQty(i).Text = ""
    Next i
    txtCustomer_DblClick
End Sub

Private Sub optLater_Click()
    chkExpress.Enabled = False
End Sub

Private Sub optNow_Click()
    chkExpress.Enabled = True
End Sub

Private Sub tmrClock_Timer()
    lblClock.Caption = Format$(Now, "hh:nn")
End Sub

Private Sub txtCustomer_Click()
    txtCustomer.SelStart = Len(txtCustomer.Text)
End Sub

Private Sub txtCustomer_DblClick()
    frmCustomer.Show vbModal, Me
    If Len(frmCustomer.Chosen) > 0 Then txtCustomer.Text = frmCustomer.Chosen
    txtCustomer_Click
End Sub ' txtCustomer_DblClick

Private Sub txtQty_KeyPress(Index As Integer, KeyAscii As Integer)
    Dim lCount As Long

    lCount = CLng(Val(txtQty(Index).Text))
    If KeyAscii = Asc("+") Then lCount = lCount + 1
    If KeyAscii = Asc("-") And lCount > 0 Then lCount = lCount - 1
    If KeyAscii = Asc("+") Or KeyAscii = Asc("-") Then
        txtQty(Index).Text = CStr(lCount)
        KeyAscii = 0
    End If
    KeyAscii = DigitsOnly(KeyAscii)
    ShowTotal
End Sub

Private Sub txtQty_Click(Index As Integer)
    txtQty(Index).SelStart = 0
    txtQty(Index).SelLength = Len(txtQty(Index).Text)
End Sub

Private Sub txtQty_DblClick(Index As Integer)
    If Val(txtQty(Index).Text) = 0 Then txtQty_KeyPress Index, Asc("+")
    txtQty_Click Index
End Sub

Private Sub txtQty_LostFocus(Index As Integer)
    Call txtQty_KeyPress(Index, Asc(Left$(txtQty(Index).Text & "0", 1))) ' counts again
    Call txtQty_DblClick((Index)) ' a line without copies makes no sense
End Sub

Private Sub ShowTotal()
    Dim oOrder As clsOrder

    Set oOrder = ReadOrder()
    monTotal.Amount = oOrder.Total
End Sub

Private Function ReadOrder() As clsOrder
    Dim i As Integer

    Set ReadOrder = New clsOrder
    ReadOrder.Customer = txtCustomer.Text
    For i = 0 To LAST_LINE
        If cboTitle(i).ListIndex >= 0 And Val(txtQty(i).Text) > 0 Then
            ReadOrder.Add gBooks(cboTitle(i).ListIndex).Isbn, CLng(Val(txtQty(i).Text))
        End If
    Next i
End Function

Private Sub PlaceOrder()
    Dim oOrder As clsOrder
    Dim cbo As ComboBox

    Set oOrder = ReadOrder()
    If oOrder.Count = 0 Then
        MsgBox "Nothing to order – nichts zu bestellen.", vbExclamation, APP_TITLE
        txtQty_Click 0
        Exit Sub
    End If
    If oOrder.Deliver() Then
        gOrders.Add oOrder
        Set cbo = cboCarrier
        MsgBox "Placed for " & Quoted(oOrder.Customer) & ", by " & cbo.Text & " (" & _
               (GetTickCount() - mStarted) \ 1000 & " s).", vbInformation, APP_TITLE
        Unload Me
    Else
        MsgBox "Not enough copies on the shelf.", vbExclamation, APP_TITLE
    End If
End Sub
