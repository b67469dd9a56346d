Attribute VB_Name = "modMain"
Option Explicit

Public Const APP_TITLE As String = "Bookshop"
Public Const LOW_STOCK As Long = 3

Public Type TBook
    Isbn As String
    Title As String
    Author As String
    Price As Currency
    Stock As Long
    Shelf As String
End Type

Public gBooks() As TBook
Public gBookCount As Long
Public gOrders As Collection

Public Sub Main()
    Set gOrders = New Collection
    LoadBooks App.Path & "\books.txt"
    If gBookCount = 0 Then AddSampleBooks
    frmMain.Show
End Sub

' One book a line: ISBN;title;author;price;stock;shelf
Public Sub LoadBooks(ByVal sFile As String)
    Dim iFile As Integer
    Dim sLine As String
    Dim aParts() As String

    If Len(Dir$(sFile)) = 0 Then Exit Sub
    iFile = FreeFile
    Open sFile For Input As #iFile
    Do While Not EOF(iFile)
        Line Input #iFile, sLine
        aParts = Split(sLine, ";")
        If UBound(aParts) = 5 Then
            AddBook aParts(0), aParts(1), aParts(2), CCur(Val(aParts(3))), CLng(Val(aParts(4))), aParts(5)
        End If
    Loop
    Close #iFile
End Sub

Public Sub AddBook(ByVal sIsbn As String, ByVal sTitle As String, ByVal sAuthor As String, _
                   ByVal cPrice As Currency, ByVal lStock As Long, ByVal sShelf As String)
    ReDim Preserve gBooks(0 To gBookCount)
    With gBooks(gBookCount)
        .Isbn = sIsbn
        .Title = sTitle
        .Author = sAuthor
        .Price = cPrice
        .Stock = lStock
        .Shelf = sShelf
    End With
    gBookCount = gBookCount + 1
End Sub

Private Sub AddSampleBooks()
    AddBook "9780000000019", "Die stille Straße", "Jürgen Köhler", 19.9, 4, "Belletristik"
    AddBook "9780000000026", "Un été à la mer", "Hélène Brûlé", 12.5, 2, "Français"
    AddBook "9780000000033", "El año del pingüino", "Íñigo Peña", 15, 7, "Español"
    AddBook "9780000000040", "A Field Guide to Quiet", "Ann O'Neill", 24.95, 0, "English"
End Sub

' Position of a book in gBooks, -1 when the number is unknown.
Public Function FindBook(ByVal sIsbn As String) As Long
    Dim i As Long

    FindBook = -1
    For i = 0 To gBookCount - 1
        If gBooks(i).Isbn = sIsbn Then
            FindBook = i
            Exit Function
        End If
    Next i
End Function

' Modules are not touched by the wizard: the reference below stays, and has to be changed by hand.
Public Sub SelectAllText(ByVal box As TextBox)
    box.SelStart = 0
    box.SelLength = Len(box.Text)
End Sub
