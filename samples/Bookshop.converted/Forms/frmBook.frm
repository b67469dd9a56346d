VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0"; "Orvanta31.ocx"
Begin VB.Form frmBook 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Title card – Titelkarte – Fiche"
   ClientHeight    =   5880
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   7335
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   5880
   ScaleWidth      =   7335
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
Begin Orvanta.ctlUniButtonImageXP cmdCard
      Caption         =   "&Save"
      Default         =   -1  'True
      Height          =   375
      Index           =   0
      Left            =   4680
      TabIndex        =   22
Tip="Save the card"
      Top             =   5400
      Width           =   1215
   End
Begin Orvanta.ctlUniButtonImageXP cmdCard
      Cancel          =   -1  'True
      Caption         =   "Cancel"
      Height          =   375
      Index           =   1
      Left            =   6000
      TabIndex        =   23
      Top             =   5400
      Width           =   1215
   End
   Begin MSComctlLib.ImageCombo imcLanguage 
      Height          =   330
      Left            =   1320
      TabIndex        =   8
      ToolTipText     =   "Language of the text"
      Top             =   1920
      Width           =   2415
      _ExtentX        =   4260
      _ExtentY        =   582
      _Version        =   393216
      ForeColor       =   -2147483640
      BackColor       =   -2147483643
      Text            =   "Français"
   End
Begin Orvanta.ctlUniFrameXP fraStock
      Caption         =   "Stock"
      Height          =   2775
      Left            =   120
      TabIndex        =   9
      Top             =   2520
      Width           =   7095
Begin Orvanta.ctlUniFrameXP fraBinding
         Caption         =   "Binding"
         Height          =   1455
         Left            =   4680
         TabIndex        =   16
         Top             =   240
         Width           =   2295
Begin Orvanta.ctlUniRadioXP optBinding
            Caption         =   "&Hardcover"
            Height          =   255
            Index           =   0
            Left            =   120
            TabIndex        =   17
Tip="Gebunden"
            Top             =   360
Pressed=-1
            Width           =   1935
         End
Begin Orvanta.ctlUniRadioXP optBinding
            Caption         =   "&Paperback"
            Height          =   255
            Index           =   1
            Left            =   120
            TabIndex        =   18
            Top             =   720
Pressed=0
            Width           =   1935
         End
      End
Begin Orvanta.ctlUniFrameXP fraNotes
         BorderStyle     =   0  'None
         Caption         =   "Notes"
         Height          =   855
         Left            =   120
         TabIndex        =   20
         Top             =   1800
         Width           =   6855
Begin Orvanta.ctlUniTextBoxXP txtNotes
            Height          =   735
            Left            =   0
            MultiLine       =   -1  'True
            ScrollBars      =   2  'Vertical
            TabIndex        =   21
Tip="Für das Team – pour l'équipe – para el equipo"
            Top             =   0
            Width           =   6735
         End
      End
Begin Orvanta.ctlUniTextBoxXP txtStock
         Alignment       =   1  'Right Justify
         Height          =   285
         Left            =   1200
         MaxLength       =   4
         TabIndex        =   10
         Text            =   "0"
         Top             =   360
         Width           =   735
      End
Begin Orvanta.ctlUniComboBoxXP cboShelf
Style = 2
         Height          =   315
         Left            =   1200
         Sorted          =   -1  'True
         TabIndex        =   11
         Text            =   "Español"
Tip="Type a new shelf or choose one"
         Top             =   720
         Width           =   2415
      End
Begin Orvanta.ctlUniComboBoxXP cboSupplier
         Height          =   315
         Left            =   1200
Style=1
         TabIndex        =   12
         Top             =   1080
         Width           =   2415
      End
Begin Orvanta.ctlUniCheckXP chkReorder
         Alignment       =   1  'Right Justify
         Caption         =   "Reorder when low"
         Height          =   255
         Left            =   2160
         TabIndex        =   13
Tip="Grey: as the supplier has it"
         Top             =   360
Pressed=0
         Width           =   1575
      End
Begin Orvanta.ctlUniLabel lblCopies
         Caption         =   "&Copies"
         Height          =   255
         Left            =   120
         TabIndex        =   15
         Top             =   390
         Width           =   975
      End
   End
Begin Orvanta.ctlUniTextBoxXP txtField
      Height          =   285
      Index           =   0
      Left            =   1320
      MaxLength       =   13
      TabIndex        =   0
      Text            =   "9780000000019"
Tip="Thirteen digits"
      Top             =   480
      Width           =   2415
   End
Begin Orvanta.ctlUniTextBoxXP txtField
      Height          =   285
      Index           =   1
      Left            =   1320
      TabIndex        =   1
      Text            =   "Die stille Straße"
      Top             =   840
      Width           =   5895
   End
Begin Orvanta.ctlUniTextBoxXP txtField
      Height          =   285
      Index           =   2
      Left            =   1320
      TabIndex        =   2
      Text            =   "Jürgen Köhler"
      Top             =   1200
      Width           =   5895
   End
Begin Orvanta.ctlUniTextBoxXP txtPrice
      Alignment       =   1  'Right Justify
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   285
      Left            =   1320
      TabIndex        =   3
      Text            =   "19,90 €"
Tip="Price with tax, in €"
      Top             =   1560
      Width           =   1215
   End
   Begin Orvanta.ctlUniLabel lblCard 
      Height          =   255
      Index           =   0
      Left            =   120
      TabIndex        =   4
      Top             =   510
      Width           =   1095
      _ExtentX        =   1931
      _ExtentY        =   450
      BackStyle       =   1
      Caption         =   "&ISBN"
   End
   Begin Orvanta.ctlUniLabel lblCard 
      Height          =   255
      Index           =   1
      Left            =   120
      TabIndex        =   5
      Top             =   870
      Width           =   1095
      _ExtentX        =   1931
      _ExtentY        =   450
      Caption         =   "&Titel · Titre"
   End
   Begin Orvanta.ctlUniLabelNoFlick lblCard 
      Height          =   255
      Index           =   2
      Left            =   120
      TabIndex        =   6
      Top             =   1230
      Width           =   1095
      _ExtentX        =   1931
      _ExtentY        =   450
      BackStyle       =   0
      Caption         =   "&Autor · Auteur"
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "MS Sans Serif"
         Size            =   8.25
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   -1  'True
         Strikethrough   =   0   'False
      EndProperty
   End
End
Attribute VB_Name = "frmBook"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Const FLD_ISBN As Integer = 0
Private Const FLD_TITLE As Integer = 1
Private Const FLD_AUTHOR As Integer = 2

Private mBook As Long

Public Sub ShowBook(ByVal lBook As Long)
    mBook = lBook
    If lBook < 0 Then
        ClearCard
    Else
        ReadCard lBook
    End If
    Show vbModal, frmMain
End Sub

Private Sub Form_Load()
    imcLanguage.ComboItems.Add , , "Deutsch"
    imcLanguage.ComboItems.Add , , "English"
    imcLanguage.ComboItems.Add , , "Español"
    imcLanguage.ComboItems.Add , , "Français"
    cboSupplier.AddItem "Großhandel Süd"
    cboSupplier.AddItem "Librairie du Château"
    cboSupplier.ListIndex = 0
End Sub

Private Sub ClearCard()
    Dim i As Integer

    For i = FLD_ISBN To FLD_AUTHOR
        txtField(i).Text = ""
        MarkField txtField(i), False
    Next i
    txtPrice.Text = MoneyText(0)
    txtStock.Text = "0"
    txtNotes.Text = ""
End Sub

Private Sub ReadCard(ByVal lBook As Long)
    With gBooks(lBook)
        txtField(FLD_ISBN).Text = .Isbn
        txtField(FLD_TITLE).Text = .Title
        txtField(FLD_AUTHOR).Text = .Author
        txtPrice.Text = MoneyText(.Price)
        txtStock.Text = CStr(.Stock)
        cboShelf.Text = .Shelf
    End With
End Sub

' A field that does not fit is shown in yellow.
Private Sub MarkField(ByVal box As TextBox, ByVal bWrong As Boolean)
    If bWrong Then box.BackColor = vbYellow Else box.BackColor = vbWindowBackground
End Sub

Private Function CardIsGood() As Boolean
    Dim opt As VB.OptionButton

    For Each opt In optBinding
        If opt.Value Then CardIsGood = True
    Next opt
    If Not IsbnIsValid(txtField(FLD_ISBN).Text) Then
        MarkField txtField(FLD_ISBN), True
        txtField_Click FLD_ISBN,  0
        CardIsGood = False
    End If
    If MoneyValue(txtPrice.Text) <= 0 Then
        Call txtPrice_DblClick( 0) ' offers the usual price
        CardIsGood = False
    End If
End Function

Private Sub cmdCard_Click(Index As Integer)
    If Index = 0 Then
        If Not CardIsGood Then Exit Sub
        If mBook < 0 Then
            AddBook txtField(FLD_ISBN).Text, txtField(FLD_TITLE).Text, txtField(FLD_AUTHOR).Text, _
                    MoneyValue(txtPrice.Text), CLng(Val(txtStock.Text)), cboShelf.Text
        Else
            gBooks(mBook).Price = MoneyValue(txtPrice.Text)
            gBooks(mBook).Stock = CLng(Val(txtStock.Text))
        End If
    End If
    Unload Me
End Sub

Private Sub txtField_KeyPress(Index As Integer, KeyAscii As Integer, Shift As Integer)
    If Index = FLD_ISBN Then KeyAscii = DigitsOnly(KeyAscii)
    MarkField txtField(Index), False
End Sub

Private Sub txtField_Click(Index As Integer, Button As Integer)
    SelectAllText txtField(Index)
End Sub

Private Sub txtField_DblClick(Index As Integer, Button As Integer)
    Select Case Index
        Case FLD_ISBN
            Clipboard.SetText txtField(Index).Text
        Case FLD_TITLE, FLD_AUTHOR
            txtField(Index).Text = StrConv(txtField(Index).Text, vbProperCase)
            Call txtField_Click(Index,  0) ' keep it selected
    End Select
End Sub

Private Sub txtPrice_Click(Button As Integer)
    SelectAllText txtPrice
End Sub

Private Sub txtPrice_DblClick(Button As Integer)
    txtPrice.Text = MoneyText(9.9)
End Sub

Private Sub txtPrice_KeyPress(KeyAscii As Integer, Shift As Integer)
    If KeyAscii = Asc(".") Then KeyAscii = Asc(",")
    If KeyAscii <> Asc(",") Then KeyAscii = DigitsOnly(KeyAscii)
End Sub

Private Sub txtStock_KeyPress(KeyAscii As Integer, Shift As Integer)
    Select Case KeyAscii
        Case Asc("+")
            txtStock.Text = CStr(CLng(Val(txtStock.Text)) + 1)
            KeyAscii = 0
        Case Asc("-")
            If Val(txtStock.Text) > 0 Then txtStock.Text = CStr(CLng(Val(txtStock.Text)) - 1)
            KeyAscii = 0
        Case Else
            KeyAscii = DigitsOnly(KeyAscii)
    End Select
End Sub

' The name of the argument was changed here, so the wizard does not know this handler.
Private Sub txtNotes_KeyPress(Key As Integer)
    If Key = vbKeyEscape Then txtNotes.Text = ""
End Sub

Private Sub Form_KeyPress(KeyAscii As Integer)
    If ActiveControl Is txtStock Then
        txtStock_KeyPress KeyAscii,  0
    ElseIf ActiveControl Is txtField(FLD_ISBN) Then
        txtField_KeyPress FLD_ISBN, KeyAscii ,  0' only digits
    ElseIf ActiveControl Is txtPrice Then
        Call txtPrice_KeyPress(IIf(KeyAscii = Asc("€"), 0, KeyAscii),  0)
    End If
End Sub


