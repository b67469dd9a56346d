Attribute VB_Name = "modFormat"
Option Explicit

' Amounts are shown as "12,50 €", whatever the system says.
Public Function MoneyText(ByVal cAmount As Currency) As String
    MoneyText = Replace(Format$(cAmount, "0.00"), ".", ",") & " €"
End Function

Public Function MoneyValue(ByVal sText As String) As Currency
    MoneyValue = CCur(Val(Replace(Replace(sText, "€", ""), ",", ".")))
End Function

Public Function Quoted(ByVal sText As String) As String
    Quoted = "“" & sText & "”"
End Function

' Only digits, for ISBN and quantity boxes; a back space passes.
Public Function DigitsOnly(ByVal iKey As Integer) As Integer
    If iKey = vbKeyBack Or (iKey >= vbKey0 And iKey <= vbKey9) Then DigitsOnly = iKey
End Function

' Check digit of a thirteen-digit number.
Public Function IsbnIsValid(ByVal sIsbn As String) As Boolean
    Dim i As Long
    Dim lSum As Long

    If Len(sIsbn) <> 13 Then Exit Function
    For i = 1 To 13
        lSum = lSum + CLng(Val(Mid$(sIsbn, i, 1))) * IIf(i Mod 2 = 0, 3, 1)
    Next i
    IsbnIsValid = (lSum Mod 10 = 0)
End Function
