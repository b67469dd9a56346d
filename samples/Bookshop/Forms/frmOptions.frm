VERSION 5.00
Object = "{3B9C5A14-71D8-4E26-B0F3-92C6D1A7E845}#1.0#0"; "Orvanta28.ocx"
Begin VB.Form frmOptions 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Options"
   ClientHeight    =   4560
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   5655
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   4560
   ScaleWidth      =   5655
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin VB.Frame fraStock 
      Caption         =   "Stock"
      Height          =   1575
      Left            =   120
      TabIndex        =   6
      Top             =   480
      Width           =   5415
      Begin VB.CheckBox chkOption 
         Caption         =   "Warn when fewer than"
         Height          =   255
         Index           =   0
         Left            =   120
         TabIndex        =   7
         Top             =   360
         Value           =   1  'Checked
         Width           =   2175
      End
      Begin VB.CheckBox chkOption 
         Caption         =   "Hide titles that are sold out"
         Height          =   255
         Index           =   1
         Left            =   120
         TabIndex        =   8
         ToolTipText     =   "Épuisé – vergriffen – agotado"
         Top             =   720
         Width           =   5055
      End
      Begin VB.CheckBox chkOption 
         Caption         =   "Print shelf labels (depends on the printer)"
         Height          =   255
         Index           =   2
         Left            =   120
         TabIndex        =   9
         Top             =   1080
         Value           =   2  'Grayed
         Width           =   5055
      End
      Begin VB.TextBox txtLimit 
         Alignment       =   1  'Right Justify
         Height          =   285
         Left            =   2400
         MaxLength       =   2
         TabIndex        =   10
         Text            =   "3"
         ToolTipText     =   "Copies"
         Top             =   340
         Width           =   495
      End
   End
   Begin VB.Frame fraMoney 
      Caption         =   "Money"
      Height          =   1455
      Left            =   120
      TabIndex        =   11
      Top             =   2160
      Width           =   5415
      Begin VB.PictureBox picCurrency 
         BorderStyle     =   0  'None
         Height          =   375
         Left            =   120
         ScaleHeight     =   375
         ScaleWidth      =   5055
         TabIndex        =   12
         Top             =   360
         Width           =   5055
         Begin VB.OptionButton optEuro 
            Caption         =   "€ behind"
            Height          =   255
            Left            =   0
            TabIndex        =   13
            Top             =   60
            Value           =   -1  'True
            Width           =   1455
         End
         Begin VB.OptionButton optFront 
            Caption         =   "€ in front"
            Height          =   255
            Left            =   1560
            TabIndex        =   14
            ToolTipText     =   "As on Irish invoices"
            Top             =   60
            Value           =   0   'False
            Width           =   1455
         End
         Begin VB.OptionButton optNone 
            Caption         =   "No sign"
            Height          =   255
            Left            =   3120
            TabIndex        =   15
            Top             =   60
            Width           =   1455
         End
      End
      Begin VB.ComboBox cboRounding 
         Height          =   315
         Left            =   1560
         Style           =   2  'Dropdown List
         TabIndex        =   16
         ToolTipText     =   "Runden – arrondir – redondear"
         Top             =   840
         Width           =   1815
      End
      Begin VB.Label lblRounding 
         Caption         =   "Round to"
         Height          =   255
         Left            =   120
         TabIndex        =   17
         Top             =   870
         Width           =   1335
      End
   End
   Begin Orvanta.ctlUniComboBoxXP cboLanguage 
      Height          =   315
      Left            =   1680
      TabIndex        =   1
      ToolTipText     =   "Language of the program"
      Top             =   3840
      Width           =   1815
      _ExtentX        =   3201
      _ExtentY        =   556
      Style           =   2
   End
   Begin VB.CommandButton cmdOption 
      Caption         =   "OK"
      Default         =   -1  'True
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   8.25
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   375
      Index           =   0
      Left            =   3000
      TabIndex        =   2
      Top             =   4080
      Width           =   1215
   End
   Begin VB.CommandButton cmdOption 
      Cancel          =   -1  'True
      Caption         =   "Abbrechen"
      Height          =   375
      Index           =   1
      Left            =   4320
      TabIndex        =   3
      ToolTipText     =   "Leave everything as it was"
      Top             =   4080
      Width           =   1215
   End
   Begin Orvanta.ctlUniLabel lblLanguage 
      Height          =   255
      Left            =   120
      TabIndex        =   0
      Top             =   3870
      Width           =   1455
      _ExtentX        =   2566
      _ExtentY        =   450
      BackStyle       =   0
      Caption         =   "Sprache · langue"
   End
   Begin Orvanta.ctlUniLabel lblHint 
      Height          =   255
      Left            =   120
      TabIndex        =   4
      Top             =   120
      Width           =   5415
      _ExtentX        =   9551
      _ExtentY        =   450
      BackStyle       =   1
      Caption         =   "Changes hold at once – ñandú, œuvre, Žižek"
   End
End
Attribute VB_Name = "frmOptions"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub Form_Load()
    cboRounding.AddItem "0,01 €"
    cboRounding.AddItem "0,05 €"
    cboRounding.ListIndex = 0
    cboLanguage.AddItem "Deutsch"
    cboLanguage.AddItem "Español"
    cboLanguage.AddItem "Français"
    txtLimit.Text = CStr(LOW_STOCK)
    Enlarge fraStock, 0
    Enlarge fraMoney, 0
End Sub

' Grows a frame and returns nothing; kept for translations with longer captions.
Private Sub Enlarge(ByVal fra As Frame, ByVal lTwips As Long)
    Dim chk As CheckBox

    fra.Width = fra.Width + lTwips
    For Each chk In chkOption
        If chk.Container Is fra Then chk.Width = chk.Width + lTwips
    Next chk
End Sub

Private Sub chkOption_Click(Index As Integer)
    If Index = 0 Then txtLimit.Enabled = (chkOption(0).Value = vbChecked)
    If txtLimit.Enabled And Index = 0 Then txtLimit_Click ' so that typing replaces
End Sub

Private Sub cmdOption_Click(Index As Integer)
    Dim btn As CommandButton

    If Index = 0 Then SaveSetting APP_TITLE, "Stock", "Limit", txtLimit.Text
    For Each btn In cmdOption
        btn.Enabled = False
    Next btn
    Unload Me
End Sub

Private Sub txtLimit_Click()
    SelectAllText txtLimit
End Sub

Private Sub txtLimit_KeyPress(KeyAscii As Integer)
    KeyAscii = DigitsOnly(KeyAscii)
End Sub

Private Sub txtLimit_Validate(Cancel As Boolean)
    Dim i As Integer

    For i = 1 To Len(txtLimit.Text)
        ' the same rule as for typed keys: txtLimit_KeyPress
        Call txtLimit_KeyPress(Asc(Mid$(txtLimit.Text, i, 1)))
    Next i
    If Val(txtLimit.Text) = 0 Then txtLimit.Text = CStr(LOW_STOCK): txtLimit_Click
End Sub
