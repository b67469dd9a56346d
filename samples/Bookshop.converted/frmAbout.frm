VERSION 5.00
Begin VB.Form frmAbout 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "About Bookshop"
   ClientHeight    =   3000
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   5190
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   3000
   ScaleWidth      =   5190
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
Begin Orvanta.ctlUniButtonImageXP cmdOK
      Cancel          =   -1  'True
      Caption         =   "&OK"
      Default         =   -1  'True
      Height          =   375
      Left            =   3840
      TabIndex        =   0
Tip="Close this window"
      Top             =   2520
      Width           =   1215
   End
   Begin VB.PictureBox picLogo 
      BackColor       =   &H00C0E0FF&
      Height          =   1095
      Left            =   120
      ScaleHeight     =   1035
      ScaleWidth      =   1035
      TabIndex        =   1
      ToolTipText     =   "Bücherstube am Café"
      Top             =   120
      Width           =   1095
Begin Orvanta.ctlUniLabel lblMark
         Alignment       =   2  'Center
         BackStyle       =   0  'Transparent
         Caption         =   "B"
         BeginProperty Font 
            Name            =   "Times New Roman"
            Size            =   36
            Charset         =   0
            Weight          =   700
            Underline       =   0   'False
            Italic          =   -1  'True
            Strikethrough   =   0   'False
         EndProperty
         ForeColor       =   &H00404080&
         Height          =   855
         Left            =   0
         TabIndex        =   2
         Top             =   120
         Width           =   1035
      End
   End
Begin Orvanta.ctlUniLabel lblVersion
      Caption         =   "Version"
      Height          =   255
      Left            =   1440
      TabIndex        =   4
      Top             =   720
      Width           =   3615
   End
Begin Orvanta.ctlUniLabel lblTitle
      Caption         =   "Bookshop – stock and orders"
      BeginProperty Font 
         Name            =   "MS Sans Serif"
         Size            =   9.75
         Charset         =   0
         Weight          =   700
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   375
      Left            =   1440
      TabIndex        =   3
      Top             =   240
      Width           =   3615
   End
   Begin VB.Line linRule 
      X1              =   120
      X2              =   5040
      Y1              =   2400
      Y2              =   2400
   End
End
Attribute VB_Name = "frmAbout"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdOK_Click()
    Unload Me
End Sub

Private Sub Form_Load()
    lblVersion.Caption = "Version " & App.Major & "." & App.Minor & "." & App.Revision
End Sub

