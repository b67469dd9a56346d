VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0"; "Orvanta31.ocx"
Begin VB.Form frmMain 
   Caption         =   "Bookshop"
   ClientHeight    =   7080
   ClientLeft      =   165
   ClientTop       =   735
   ClientWidth     =   10455
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "Form1"
   ScaleHeight     =   7080
   ScaleWidth      =   10455
   StartUpPosition =   2  'CenterScreen
   Begin Orvanta.ctlUTF8Menu mnuUnicode 
      Left            =   9840
      Top             =   6000
      _ExtentX        =   847
      _ExtentY        =   847
StringMode=1
      HighlightColor  =   14120960
   End
   Begin MSComctlLib.Toolbar tbrMain 
      Align           =   1  'Align Top
      Height          =   420
      Left            =   0
      TabIndex        =   9
      ToolTipText     =   "Main tools"
      Top             =   0
      Width           =   10455
      _ExtentX        =   18441
      _ExtentY        =   741
      ButtonWidth     =   609
      ButtonHeight    =   582
      Appearance      =   1
      _Version        =   393216
      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} 
         NumButtons      =   3
         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "New"
            Key             =   "New"
            Object.ToolTipText     =   "New title"
         EndProperty
         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   3
         EndProperty
         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Order"
            Key             =   "Order"
            Object.ToolTipText     =   "New order"
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.StatusBar sbrMain 
      Align           =   2  'Align Bottom
      Height          =   375
      Left            =   0
      TabIndex        =   8
      Top             =   6705
      Width           =   10455
      _ExtentX        =   18441
      _ExtentY        =   661
      _Version        =   393216
      BeginProperty Panels {8E3867A5-8586-11D1-B16A-00C0F0283628} 
         NumPanels       =   2
         BeginProperty Panel1 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            AutoSize        =   1
            Object.Width           =   15346
            Text            =   "Ready – prêt – listo"
            TextSave        =   "Ready – prêt – listo"
         EndProperty
         BeginProperty Panel2 {8E3867AB-8586-11D1-B16A-00C0F0283628} 
            Style           =   6
            Object.ToolTipText     =   "Date"
         EndProperty
      EndProperty
   End
   Begin MSComctlLib.TreeView tvwShelves 
      Height          =   5055
      Left            =   120
      TabIndex        =   7
      ToolTipText     =   "Shelves"
      Top             =   1080
      Width           =   2655
      _ExtentX        =   4683
      _ExtentY        =   8916
      _Version        =   393217
      HideSelection   =   0   'False
      Indentation     =   353
      LabelEdit       =   1
      LineStyle       =   1
      Style           =   6
      Appearance      =   1
   End
   Begin VB.Frame fraSearch 
      Caption         =   "Search"
      Height          =   615
      Left            =   2880
      TabIndex        =   4
      Top             =   480
      Width           =   7455
      Begin VB.TextBox txtSearch 
         BeginProperty Font 
            Name            =   "Arial"
            Size            =   9
            Charset         =   0
            Weight          =   400
            Underline       =   0   'False
            Italic          =   0   'False
            Strikethrough   =   0   'False
         EndProperty
         Height          =   300
         Left            =   120
         TabIndex        =   0
         ToolTipText     =   "Title, author or ISBN – “café” finds Café too"
         Top             =   210
         Width           =   4695
      End
      Begin VB.CommandButton cmdSearch 
         Caption         =   "&Find"
         Default         =   -1  'True
         Height          =   300
         Left            =   4920
         TabIndex        =   1
         ToolTipText     =   ""
         Top             =   210
         Width           =   1095
      End
      Begin VB.CheckBox chkInStock 
         Caption         =   "In s&tock"
         Height          =   255
         Left            =   6120
         TabIndex        =   2
         Top             =   240
         Value           =   1  'Checked
         Width           =   1215
      End
   End
   Begin VB.ListBox lstBooks 
      BeginProperty Font 
         Name            =   "Courier New"
         Size            =   9
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   4560
      Left            =   2880
      Sorted          =   -1  'True
      TabIndex        =   3
      ToolTipText     =   "Double click opens the card"
      Top             =   1200
      Width           =   7455
   End
   Begin Orvanta.ctlUniButtonImageXP cmdOrder 
      Height          =   375
      Left            =   9120
      TabIndex        =   6
      ToolTipText     =   "Order the chosen title"
      Top             =   6240
      Width           =   1215
      _ExtentX        =   2143
      _ExtentY        =   661
      Caption         =   "&Order…"
      BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} 
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
   End
   Begin Orvanta.ctlUniLabelNoFlick lblHeading 
      Height          =   255
      Left            =   120
      TabIndex        =   5
      Top             =   720
      Width           =   2655
      _ExtentX        =   4683
      _ExtentY        =   450
      BackStyle       =   0
      Caption         =   "Régales · Regale · Estantes"
   End
   Begin VB.Label lblCount 
      Alignment       =   1  'Right Justify
      Caption         =   "0 titles"
      Height          =   255
      Left            =   2880
      TabIndex        =   10
      Top             =   5880
      Width           =   7455
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileNew 
         Caption         =   "&New title…"
         Shortcut        =   ^N
      End
      Begin VB.Menu mnuFileImport 
         Caption         =   "&Import…"
      End
      Begin VB.Menu mnuFileRecent 
         Caption         =   "&Recent"
         Begin VB.Menu mnuFileRecentItem 
            Caption         =   "(none)"
            Enabled         =   0   'False
            Index           =   0
         End
      End
      Begin VB.Menu mnuFileBar 
         Caption         =   "-"
      End
      Begin VB.Menu mnuFileExit 
         Caption         =   "E&xit"
      End
   End
   Begin VB.Menu mnuTools 
      Caption         =   "&Tools"
      Begin VB.Menu mnuToolsCustomers 
         Caption         =   "&Customers…"
      End
      Begin VB.Menu mnuToolsOptions 
         Caption         =   "&Options…"
      End
   End
   Begin VB.Menu mnuHelp 
      Caption         =   "&Help"
      Begin VB.Menu mnuHelpAbout 
         Caption         =   "&About…"
      End
   End
End
Attribute VB_Name = "frmMain"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

' Text of the last search, so that “find again” needs no typing.
Private mLastSearch As String

Private Sub Form_Load()
    FillShelves
    FillList ""
    mnuUnicode.Attach Me
End Sub

Private Sub Form_Resize()
    If WindowState = vbMinimized Then Exit Sub
    If ScaleWidth < 6000 Or ScaleHeight < 4000 Then Exit Sub
    fraSearch.Width = ScaleWidth - fraSearch.Left - 120
    lstBooks.Width = fraSearch.Width
    lstBooks.Height = ScaleHeight - 2500
    tvwShelves.Height = lstBooks.Height + 120
    MoveBelow lblCount, lstBooks
End Sub

' Puts a label under a list.
Private Sub MoveBelow(ByVal lbl As VB.Label, ByVal lst As ListBox)
    lbl.Top = lst.Top + lst.Height + 60
    lbl.Width = lst.Width
End Sub

Private Sub FillShelves()
    Dim i As Long

    tvwShelves.Nodes.Clear
    tvwShelves.Nodes.Add , , "all", "All shelves"
    On Error Resume Next
    For i = 0 To gBookCount - 1
        tvwShelves.Nodes.Add "all", tvwChild, "s" & gBooks(i).Shelf, gBooks(i).Shelf
    Next i
    On Error GoTo 0
    tvwShelves.Nodes("all").Expanded = True
End Sub

Private Sub FillList(ByVal sWanted As String)
    Dim i As Long
    Dim sLine As String

    lstBooks.Clear
    For i = 0 To gBookCount - 1
        sLine = gBooks(i).Title & " (" & gBooks(i).Author & ")"
        If InStr(1, sLine & gBooks(i).Isbn, sWanted, vbTextCompare) > 0 Then
            If chkInStock.Value = 0 Or gBooks(i).Stock > 0 Then
                lstBooks.AddItem sLine & "  " & MoneyText(gBooks(i).Price)
                lstBooks.ItemData(lstBooks.NewIndex) = i
            End If
        End If
    Next i
    lblCount.Caption = lstBooks.ListCount & " titles"
    sbrMain.Panels(1).Text = "Search: " & Quoted(sWanted)
End Sub

Private Sub chkInStock_Click()
    FillList txtSearch.Text
End Sub

Private Sub cmdSearch_Click()
    txtSearch_KeyPress vbKeyReturn
End Sub

Private Sub cmdOrder_Click()
    If lstBooks.ListIndex < 0 Then
        MsgBox "Choose a title first.", vbInformation, APP_TITLE
        Exit Sub
    End If
    frmOrder.ShowFor gBooks(lstBooks.ItemData(lstBooks.ListIndex)).Isbn
End Sub

Private Sub lstBooks_DblClick()
    If lstBooks.ListIndex >= 0 Then frmBook.ShowBook lstBooks.ItemData(lstBooks.ListIndex)
End Sub

Private Sub txtSearch_Click()
    txtSearch.SelStart = 0
    txtSearch.SelLength = Len(txtSearch.Text)
End Sub

Private Sub txtSearch_DblClick()
    txtSearch.Text = mLastSearch
    txtSearch_Click
End Sub

Private Sub txtSearch_KeyPress(KeyAscii As Integer)
    If KeyAscii = Asc("'") Then KeyAscii = Asc("´") ' the index knows no apostrophe
    If KeyAscii <> vbKeyReturn Then Exit Sub
    KeyAscii = 0
    mLastSearch = txtSearch.Text
    FillList mLastSearch
End Sub

Private Sub tbrMain_ButtonClick(ByVal Button As MSComctlLib.Button)
    Select Case Button.Key
        Case "New": mnuFileNew_Click
        Case "Order": cmdOrder_Click
    End Select
End Sub

Private Sub tvwShelves_NodeClick(ByVal Node As MSComctlLib.Node)
    If Node.Key = "all" Then txtSearch.Text = "" Else txtSearch.Text = Node.Text
    Call txtSearch_KeyPress(vbKeyReturn) ' as if Enter was pressed (see cmdSearch)
    txtSearch_Click ' ready for the next word
    Call txtSearch_DblClick()
End Sub

Private Sub mnuFileNew_Click()
    frmBook.ShowBook -1
End Sub

Private Sub mnuFileImport_Click()
    frmImport.Show vbModal, Me
    FillShelves
    FillList ""
End Sub

Private Sub mnuFileRecentItem_Click(Index As Integer)
    txtSearch.Text = mnuFileRecentItem(Index).Caption
    ' typed text may hold an apostrophe
    If InStr(txtSearch.Text, "'") > 0 Then txtSearch_KeyPress Asc("'") ' O'Neill and others
    If Index > 0 Then txtSearch_KeyPress vbKeyReturn
End Sub

Private Sub mnuFileExit_Click()
    Unload Me
End Sub

Private Sub mnuToolsCustomers_Click()
    frmCustomer.Show vbModal, Me
End Sub

Private Sub mnuToolsOptions_Click()
    frmOptions.Show vbModal, Me
End Sub

Private Sub mnuHelpAbout_Click()
    frmAbout.Show vbModal, Me
End Sub

