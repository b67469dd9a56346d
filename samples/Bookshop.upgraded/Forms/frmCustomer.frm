VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{0D452EE1-E08F-101A-852E-02608C4D0BB4}#2.0#0"; "FM20.DLL"
Object = "{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0"; "Orvanta31.ocx"
Begin VB.Form frmCustomer 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Customers"
   ClientHeight    =   4470
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   6615
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   4470
   ScaleWidth      =   6615
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
   Begin MSForms.Frame fraAddress 
      Height          =   3015
      Left            =   240
      TabIndex        =   1
      Top             =   600
      Width           =   6135
      Caption         =   "Anschrift – adresse – dirección"
      Size            =   "10821;5318"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.TextBox txtName 
      Height          =   285
      Left            =   1560
      TabIndex        =   2
      ToolTipText     =   "Family name first"
      Top             =   960
      Width           =   4575
      VariousPropertyBits=   746604571
      Size            =   "8070;503"
      Value           =   "Müller-Lefèvre"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.TextBox txtTown 
      Height          =   285
      Left            =   1560
      TabIndex        =   3
      Top             =   1320
      Width           =   4575
      VariousPropertyBits=   746604571
      Size            =   "8070;503"
      Value           =   "A Coruña"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.ComboBox cboTitle 
      Height          =   315
      Left            =   1560
      TabIndex        =   4
      ToolTipText     =   "Form of address"
      Top             =   1680
      Width           =   1815
      VariousPropertyBits=   746604571
      DisplayStyle    =   3
      Size            =   "3201;556"
      MatchEntry      =   1
      ShowDropButtonWhen=   2
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.CheckBox chkCard 
      Height          =   375
      Left            =   1560
      TabIndex        =   5
      Top             =   2040
      Width           =   2055
      BackColor       =   -2147483633
      ForeColor       =   -2147483630
      DisplayStyle    =   4
      Size            =   "3625;661"
      Value           =   "1"
      Caption         =   "Customer card"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.OptionButton optLetter 
      Height          =   375
      Left            =   1560
      TabIndex        =   6
      ToolTipText     =   "Invoices on paper"
      Top             =   2400
      Width           =   2055
      BackColor       =   -2147483633
      ForeColor       =   -2147483630
      DisplayStyle    =   5
      Size            =   "3625;661"
      Value           =   "0"
      Caption         =   "Rechnung per Post"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.OptionButton optMail 
      Height          =   375
      Left            =   3840
      TabIndex        =   7
      Top             =   2400
      Width           =   2055
      BackColor       =   -2147483633
      ForeColor       =   -2147483630
      DisplayStyle    =   5
      Size            =   "3625;661"
      Caption         =   "Par courriel"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.ListBox lstKnown 
      Height          =   735
      Left            =   1560
      TabIndex        =   8
      ToolTipText     =   "Customers with open orders"
      Top             =   2800
      Width           =   4575
      VariousPropertyBits=   746586139
      ScrollBars      =   3
      DisplayStyle    =   2
      Size            =   "8070;1296"
      MatchEntry      =   0
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.Label lblName 
      Height          =   255
      Left            =   360
      TabIndex        =   9
      Top             =   990
      Width           =   1095
      VariousPropertyBits=   276824083
      Caption         =   "Name"
      Size            =   "1931;450"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.Label lblTown 
      Height          =   255
      Left            =   360
      TabIndex        =   10
      Top             =   1350
      Width           =   1095
      VariousPropertyBits=   276824083
      Caption         =   "Ort · Lieu"
      Size            =   "1931;450"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
   End
   Begin MSForms.CommandButton cmdTake 
      Height          =   375
      Left            =   3600
      TabIndex        =   11
      ToolTipText     =   "Put this customer on the order"
      Top             =   3960
      Width           =   1335
      Caption         =   "Take"
      Size            =   "2355;661"
      FontHeight      =   165
      FontCharSet     =   0
      FontPitchAndFamily=   2
      ParagraphAlign  =   3
   End
   Begin Orvanta.ctlUniButtonImageXP cmdClose 
      Height          =   375
      Left            =   5040
      TabIndex        =   12
      Top             =   3960
      Width           =   1335
      _ExtentX        =   2355
      _ExtentY        =   661
      Caption         =   "Close"
   End
   Begin MSComctlLib.TabStrip tabCustomer 
      Height          =   3615
      Left            =   120
      TabIndex        =   0
      ToolTipText     =   "Address and orders"
      Top             =   120
      Width           =   6375
      _ExtentX        =   11245
      _ExtentY        =   6376
      _Version        =   393216
      BeginProperty Tabs {1EFB6598-857C-11D1-B16A-00C0F0283628} 
         NumTabs         =   2
         BeginProperty Tab1 {1EFB659A-857C-11D1-B16A-00C0F0283628} 
            Caption         =   "Address"
            ImageVarType    =   2
         EndProperty
         BeginProperty Tab2 {1EFB659A-857C-11D1-B16A-00C0F0283628} 
            Caption         =   "Orders"
            ImageVarType    =   2
         EndProperty
      EndProperty
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "MS Sans Serif"
         Size            =   8.25
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
   End
End
Attribute VB_Name = "frmCustomer"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Name of the customer that was taken, empty after Close.
Public Chosen As String

Private Sub Form_Load()
    Dim oOrder As clsOrder

    Chosen = ""
    cboTitle.AddItem "Frau"
    cboTitle.AddItem "Herr"
    cboTitle.AddItem "Señor"
    cboTitle.AddItem "Mme"
    For Each oOrder In gOrders
        lstKnown.AddItem oOrder.Customer
    Next oOrder
End Sub

Private Sub cmdTake_Click()
    TakeCustomer
End Sub

Private Sub cmdClose_Click()
    Unload Me
End Sub

Private Sub lstKnown_Click()
    If lstKnown.ListIndex >= 0 Then txtName.Text = lstKnown.List(lstKnown.ListIndex)
    If Len(txtTown.Text) = 0 Then txtTown.Text = "Sankt Gallen"
End Sub

Private Sub tabCustomer_Click()
    Dim bAddress As Boolean

    bAddress = (tabCustomer.SelectedItem.Index = 1)
    txtName.Visible = bAddress
    txtTown.Visible = bAddress
    lstKnown.Visible = Not bAddress
    ShowLabels bAddress
End Sub

' The captions beside the boxes, used as labels of both pages.
Private Sub ShowLabels(ByVal bVisible As Boolean)
    Dim oControl As Control
    Dim lbl As Label

    For Each oControl In Controls
        If TypeOf oControl Is MSForms.Label Then oControl.Visible = bVisible
    Next oControl
    Set lbl = Nothing
End Sub

Private Sub TakeCustomer()
    Chosen = Trim$(cboTitle.Text & " " & txtName.Text)
    Unload Me
End Sub

' The signature is that of the other text box, and is left to the developer.
Private Sub txtName_KeyPress(ByVal KeyAscii As MSForms.ReturnInteger)
    If KeyAscii = vbKeyReturn Then TakeCustomer
End Sub

