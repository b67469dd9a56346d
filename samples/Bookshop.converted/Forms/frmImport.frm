VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Object = "{7E41B0D2-96AC-4F13-8C27-5D03AA61F9B4}#1.0#0"; "Orvanta31.ocx"
Begin VB.Form frmImport 
   BorderStyle     =   3  'Fixed Dialog
   Caption         =   "Import a list of titles"
   ClientHeight    =   4335
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   6375
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   MinButton       =   0   'False
   ScaleHeight     =   4335
   ScaleWidth      =   6375
   ShowInTaskbar   =   0   'False
   StartUpPosition =   1  'CenterOwner
Begin Orvanta.ctlProgressXP prgImport
      Height          =   255
      Left            =   120
      TabIndex        =   6
Tip="Lines read so far"
      Top             =   3480
      Width           =   6135
      _ExtentX        =   10821
      _ExtentY        =   450
      _Version        =   393216
      Appearance      =   1
   End
Begin Orvanta.ctlUniDriveBoxXP drvSource
      Height          =   315
      Left            =   120
      TabIndex        =   0
Tip="Laufwerk – disque – disco"
      Top             =   480
      Width           =   3015
   End
Begin Orvanta.ctlUniFileBoxXP dirSource
DisplayMode = 2
      Height          =   2340
      Left            =   120
      TabIndex        =   1
      Top             =   960
      Width           =   3015
   End
Begin Orvanta.ctlUniFileBoxXP filSource
DisplayMode = 1
      BeginProperty Font 
         Name            =   "Tahoma"
         Size            =   8.25
         Charset         =   0
         Weight          =   400
         Underline       =   0   'False
         Italic          =   0   'False
         Strikethrough   =   0   'False
      EndProperty
      Height          =   2820
      Left            =   3240
      Pattern         =   "*.txt;*.csv"
      TabIndex        =   2
Tip="Double click imports the file"
      Top             =   480
      Width           =   3015
   End
Begin Orvanta.ctlUniTextBoxXP txtFile
      Height          =   285
      Left            =   120
      Locked          =   -1  'True
      TabIndex        =   3
      Top             =   3960
      Width           =   3495
   End
Begin Orvanta.ctlUniButtonImageXP cmdImport
      Caption         =   "&Import"
      Default         =   -1  'True
      Height          =   375
      Left            =   3720
      TabIndex        =   4
      Top             =   3840
      Width           =   1215
   End
Begin Orvanta.ctlUniButtonImageXP cmdClose
      Cancel          =   -1  'True
      Caption         =   "Close"
      Height          =   375
      Left            =   5040
      TabIndex        =   5
      Top             =   3840
      Width           =   1215
   End
   Begin Orvanta.ctlUniLabelNoFlick lblPath 
      Height          =   255
      Left            =   120
      TabIndex        =   7
      Top             =   120
      Width           =   6135
      _ExtentX        =   10821
      _ExtentY        =   450
      BackStyle       =   0
      Caption         =   "Datei wählen · choisir un fichier · elegir un archivo"
   End
End
Attribute VB_Name = "frmImport"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub drvSource_Change()
    On Error GoTo NotReady
    dirSource.Path = drvSource.Drive
    Exit Sub
NotReady:
    MsgBox "The drive is not ready.", vbExclamation, APP_TITLE
End Sub

Private Sub dirSource_Change()
    filSource.Path = dirSource.Path
End Sub

Private Sub filSource_Click()
    txtFile.Text = PathOf(dirSource, filSource)
End Sub

Private Sub filSource_DblClick()
    txtFile_DblClick 0
End Sub

' Full path of the chosen file.
Private Function PathOf(ByVal oDir As DirListBox, ByVal oFile As VB.FileListBox) As String
    PathOf = oDir.Path
    If Right$(PathOf, 1) <> "\" Then PathOf = PathOf & "\"
    PathOf = PathOf & oFile.FileName
End Function

' A path on the chosen drive alone.
Private Function RootOf(ByVal oDrive As DriveListBox) As String
    RootOf = Left$(oDrive.Drive, 2) & "\"
End Function

Private Sub cmdImport_Click()
    If Len(txtFile.Text) = 0 Then
        MsgBox "Choose a file below " & RootOf(drvSource) & " first.", vbInformation, APP_TITLE
        Exit Sub
    End If
    ImportFile txtFile.Text
End Sub

Private Sub cmdClose_Click()
    Unload Me
End Sub

Private Sub ImportFile(ByVal sFile As String)
    Dim lBefore As Long

    lBefore = gBookCount
    prgImport.Min = 0
    prgImport.Max = 100
    prgImport.Value = 10
    LoadBooks sFile
    prgImport.Value = 100
    MsgBox (gBookCount - lBefore) & " titles imported from " & Quoted(filSource.FileName) & ".", , APP_TITLE
    prgImport.Value = 0
End Sub

Private Sub txtFile_DblClick(Button As Integer)
    cmdImport_Click
End Sub


