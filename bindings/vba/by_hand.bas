Private Const errorValue As Long = 2015 ' xlErrValue: the names are Excel's alone, the numbers are known to all hosts
Private Const errorNumber As Long = 2036
Private Const errorNA As Long = 2042
Private Const largest As Single = 3.402823E+38
Private Const unwritten As Single = -3E+38 ' stands in a result until a call writes it
Private Const firstRoom As Long = 64
Private Const mostRoom As Long = 1048576

' True: values outside of the valid ranges are passed on and get what the notes say, to the bit as in C.
Public QuorvelUnchecked As Boolean

' ---- Procedures

' Loads the libraries from a folder, where Windows does not find them by itself. False: they are not there.
Public Function QuorvelLoad(ByVal folder As String) As Boolean
    QuorvelLoad = LoadLibraryW(StrPtr(folder & "\quorvel.dll")) <> 0 And _
        LoadLibraryW(StrPtr(folder & "\quorvel_arrays.dll")) <> 0
End Function

' What is wrong with values is kept in `fault`: the error that the cell shows, the first one found.
Private Sub Reject(ByRef fault As Long, ByVal reason As Long)
    If fault = 0 Then fault = reason
End Sub

Private Sub Limit(ByVal number As Double, ByVal low As Double, ByVal high As Double, ByRef fault As Long)
    If Not QuorvelUnchecked And (number < low Or number > high) Then Reject fault, errorNA
End Sub

' Of a range, what is in it.
Private Function HeldBy(ByVal given As Variant) As Variant
    If IsObject(given) Then
        HeldBy = InRange(given)
    Else
        HeldBy = given
    End If
End Function

Private Function InRange(ByVal area As Object) As Variant
    InRange = area.Value
End Function

' No text, no truth value, not an empty cell. Numbers beyond `most` are no numbers of the routine.
Private Function NumberOf(ByVal held As Variant, ByVal most As Double, ByRef fault As Long) As Double
    Select Case VarType(held)
        Case 2, 3, 4, 5, 6, 14, 17, 20
            If Abs(CDbl(held)) > most Then Reject fault, errorNA
            If fault = 0 Then NumberOf = CDbl(held)
        Case Else
            Reject fault, errorValue
    End Select
End Function

Private Function WholeOf(ByVal held As Variant, ByRef fault As Long) As Long
    Dim number As Double
    number = NumberOf(held, 2147483647, fault)
    If number <> Int(number) Then Reject fault, errorValue
    WholeOf = CLng(Int(number))
End Function

Private Function SingleOf(ByVal given As Variant, ByVal low As Single, ByVal high As Single, _
    ByRef fault As Long) As Single
    SingleOf = CSng(NumberOf(HeldBy(given), largest, fault))
    Limit SingleOf, low, high, fault
End Function

Private Function DoubleOf(ByVal given As Variant, ByVal low As Double, ByVal high As Double, _
    ByRef fault As Long) As Double
    DoubleOf = NumberOf(HeldBy(given), 1E+300, fault)
    Limit DoubleOf, low, high, fault
End Function

Private Function LongOf(ByVal given As Variant, ByVal low As Long, ByVal high As Long, ByRef fault As Long) As Long
    LongOf = WholeOf(HeldBy(given), fault)
    Limit LongOf, low, high, fault
End Function

' A number or one of the names, which stand for numbers from `low` on.
Private Function SelectorOf(ByVal given As Variant, ByVal low As Long, ByVal names As String, _
    ByRef fault As Long) As Long
    Dim held As Variant, known() As String, k As Long
    held = HeldBy(given)
    known = Split(names, " ")
    If VarType(held) <> 8 Then
        SelectorOf = LongOf(held, low, low + UBound(known), fault)
        Exit Function
    End If
    For k = 0 To UBound(known)
        If LCase(held) = known(k) Then
            SelectorOf = low + k
            Exit Function
        End If
    Next k
    Reject fault, errorNA
End Function

' UTF-8, with a NUL at the end.
Private Function BytesOf(ByVal given As Variant, ByRef fault As Long) As Variant
    Dim text As String, bytes() As Byte, n As Long, k As Long, code As Long
    If VarType(HeldBy(given)) <> 8 Then
        Reject fault, errorValue
        Exit Function
    End If
    text = HeldBy(given)
    ReDim bytes(0 To 4 * Len(text))
    k = 1
    Do While k <= Len(text)
        code = UnitAt(text, k)
        If code >= &HD800& And code < &HDC00& And k < Len(text) Then
            k = k + 1
            code = &H10000 + (code - &HD800&) * 1024 + UnitAt(text, k) - &HDC00&
        End If
        If code = 0 Then Reject fault, errorValue
        Encode code, bytes, n
        k = k + 1
    Loop
    BytesOf = bytes
End Function

' UTF-16, which AscW gives with a sign.
Private Function UnitAt(ByVal text As String, ByVal place As Long) As Long
    UnitAt = AscW(Mid(text, place, 1))
    If UnitAt < 0 Then UnitAt = UnitAt + 65536
End Function

Private Sub Encode(ByVal code As Long, ByRef bytes() As Byte, ByRef n As Long)
    Dim following As Long, place As Long
    If code < 128 Then
        bytes(n) = code
        n = n + 1
        Exit Sub
    End If
    following = 1
    If code >= 2048 Then following = 2
    If code >= 65536 Then following = 3
    For place = following To 1 Step -1
        bytes(n + place) = 128 + code Mod 64
        code = code \ 64
    Next place
    bytes(n) = (256 - 2 ^ (7 - following)) + code
    n = n + following + 1
End Sub

' The numbers of a list, row by row, in rows of so many columns; the number of rows. Of none, one that is not read.
Private Function RowsOf(ByVal given As Variant, ByVal columns As Long, ByRef numbers As Variant, _
    ByRef fault As Long) As Long
    Dim held As Variant, row As Long, column As Long, n As Long
    held = HeldBy(given)
    If Not IsArray(held) Then held = Array(held)
    If IsTable(held) Then
        If columns > 1 And UBound(held, 2) - LBound(held, 2) + 1 <> columns Then Reject fault, errorValue
        ReDim numbers(0 To (UBound(held, 1) - LBound(held, 1) + 1) * (UBound(held, 2) - LBound(held, 2) + 1) - 1)
        For row = LBound(held, 1) To UBound(held, 1)
            For column = LBound(held, 2) To UBound(held, 2)
                numbers(n) = held(row, column)
                n = n + 1
            Next column
        Next row
    ElseIf UBound(held) < LBound(held) Then
        ReDim numbers(0 To 0)
    Else
        ReDim numbers(0 To UBound(held) - LBound(held))
        For row = LBound(held) To UBound(held)
            numbers(n) = held(row)
            n = n + 1
        Next row
    End If
    If n Mod columns <> 0 Then Reject fault, errorValue
    RowsOf = n \ columns
End Function

Private Function IsTable(ByRef held As Variant) As Boolean
    Dim last As Long
    On Error GoTo One
    last = UBound(held, 2)
    IsTable = True
One:
End Function

' A list as the routine takes it; the number of rows. The array has what was given up to the first fault.
Private Function SinglesOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Single, ByVal high As Single, _
    ByRef numbers() As Single, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    SinglesOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To SinglesOf * columns - 1
        numbers(k) = SingleOf(held(k), low, high, fault)
    Next k
End Function

Private Function DoublesOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Double, ByVal high As Double, _
    ByRef numbers() As Double, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    DoublesOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To DoublesOf * columns - 1
        numbers(k) = DoubleOf(held(k), low, high, fault)
    Next k
End Function

Private Function LongsOf(ByVal given As Variant, ByVal columns As Long, ByVal low As Long, ByVal high As Long, _
    ByRef numbers() As Long, ByRef fault As Long) As Long
    Dim held As Variant, k As Long
    LongsOf = RowsOf(given, columns, held, fault)
    ReDim numbers(0 To UBound(held))
    For k = 0 To LongsOf * columns - 1
        numbers(k) = LongOf(held(k), low, high, fault)
    Next k
End Function

' Whether one of several arguments is of more than one cell, and how many rows and columns there are then.
Private Function Spans(ByRef held As Variant, ByRef rows As Long, ByRef columns As Long) As Boolean
    Dim k As Long
    rows = 1
    columns = 1
    For k = 0 To UBound(held)
        If IsArray(held(k)) Then
            If RowCountOf(held(k)) > rows Then rows = RowCountOf(held(k))
            If ColumnCountOf(held(k)) > columns Then columns = ColumnCountOf(held(k))
            Spans = True
        End If
    Next k
End Function

' An array that is no table is a row.
Private Function RowCountOf(ByRef table As Variant) As Long
    RowCountOf = 1
    If IsTable(table) Then RowCountOf = UBound(table, 1) - LBound(table, 1) + 1
End Function

Private Function ColumnCountOf(ByRef table As Variant) As Long
    If IsTable(table) Then
        ColumnCountOf = UBound(table, 2) - LBound(table, 2) + 1
    Else
        ColumnCountOf = UBound(table) - LBound(table) + 1
    End If
End Function

' A single cell, row or column goes with all others; beyond the end of others there is nothing.
Private Function CellAt(ByRef held As Variant, ByVal row As Long, ByVal column As Long) As Variant
    If Not IsArray(held) Then
        CellAt = held
        Exit Function
    End If
    If RowCountOf(held) = 1 Then row = 1
    If ColumnCountOf(held) = 1 Then column = 1
    If row > RowCountOf(held) Or column > ColumnCountOf(held) Then
        CellAt = ""
    ElseIf IsTable(held) Then
        CellAt = held(LBound(held, 1) + row - 1, LBound(held, 2) + column - 1)
    Else
        CellAt = held(LBound(held) + column - 1)
    End If
End Function

' Several results, or one error for all of them.
Private Sub PutRow(ByRef cells As Variant, ByVal row As Long, ByVal results As Variant)
    Dim k As Long
    For k = 1 To UBound(cells, 2)
        If IsArray(results) Then
            cells(row, k) = results(k - 1)
        Else
            cells(row, k) = results
        End If
    Next k
End Sub

' As many as there must be.
Private Sub Equal(ByVal count As Long, ByVal wanted As Long, ByRef fault As Long)
    If count <> wanted Then Reject fault, errorValue
End Sub

' ---- What comes out

' A result in a cell: #N/A for what was not written, #NUM! for what is no number.
Private Function CellOf(ByVal result As Variant) As Variant
    Dim number As Double
    number = result
    If Not (number >= -1.7E+308 And number <= 1.7E+308) Then
        CellOf = CVErr(errorNumber)
    ElseIf number < -2.9E+38 Then
        CellOf = CVErr(errorNA)
    Else
        CellOf = result
    End If
End Function

' An array of the routine as rows of so many columns.
Private Function TableOf(ByVal results As Variant, ByVal columns As Long) As Variant
    Dim cells As Variant, k As Long
    ReDim cells(1 To (UBound(results) + 1) \ columns, 1 To columns)
    For k = 0 To UBound(results)
        cells(k \ columns + 1, k Mod columns + 1) = CellOf(results(k))
    Next k
    TableOf = cells
End Function

' Cells and tables side by side; what is shorter is filled up with empty texts.
Private Function Beside(ByVal parts As Variant) As Variant
    Dim cells As Variant, table As Variant, rows As Long, columns As Long, row As Long, column As Long
    Dim k As Long, first As Long
    rows = 1
    For k = 0 To UBound(parts)
        If IsArray(parts(k)) Then
            If UBound(parts(k), 1) > rows Then rows = UBound(parts(k), 1)
            columns = columns + UBound(parts(k), 2)
        Else
            columns = columns + 1
        End If
    Next k
    ReDim cells(1 To rows, 1 To columns)
    For k = 0 To UBound(parts)
        table = parts(k)
        If Not IsArray(table) Then
            ReDim table(1 To 1, 1 To 1)
            table(1, 1) = parts(k)
        End If
        For column = 1 To UBound(table, 2)
            For row = 1 To rows
                cells(row, first + column) = ""
                If row <= UBound(table, 1) Then cells(row, first + column) = table(row, column)
            Next row
        Next column
        first = first + UBound(table, 2)
    Next k
    Beside = cells
End Function

Private Sub BlankSingles(ByRef results() As Single)
    Dim k As Long
    For k = 0 To UBound(results)
        results(k) = unwritten
    Next k
End Sub

' ---- Polygons in plan: ranges of two columns, x and y in m, a row for each vertex, either way round

' The pieces of a without b, and of what a and b have in common: rows of 1 (difference) or 2 (overlap), the number of
' the piece, x and y.
Public Function GeometryClip(ByVal a As Variant, ByVal b As Variant) As Variant
    Dim x() As Double, y() As Double, difference() As Long, overlap() As Long, fault As Long
    Dim cells As Variant, n As Long
    Clip a, b, x, y, difference, overlap, fault
    If fault <> 0 Then
        GeometryClip = CVErr(fault)
        Exit Function
    End If
    ReDim cells(1 To Listed(difference) + Listed(overlap), 1 To 4)
    Unfold 1, difference, x, y, cells, n
    Unfold 2, overlap, x, y, cells, n
    GeometryClip = cells
End Function

' Area that two polygons have in common [m2].
Public Function GeometryOverlapArea(ByVal a As Variant, ByVal b As Variant) As Variant
    Dim x() As Double, y() As Double, difference() As Long, overlap() As Long, fault As Long
    Dim at As Long, k As Long, o As Long, p As Long, q As Long, twice As Double, area As Double
    Clip a, b, x, y, difference, overlap, fault
    If fault <> 0 Then
        GeometryOverlapArea = CVErr(fault)
        Exit Function
    End If
    Do While overlap(at) <> 0
        twice = 0
        o = Abs(overlap(at + 1)) - 1
        For k = at + 2 To at + overlap(at) - 1
            p = Abs(overlap(k)) - 1
            q = Abs(overlap(k + 1)) - 1
            twice = twice + (x(q) - x(o)) * (y(p) - y(o)) - (x(p) - x(o)) * (y(q) - y(o))
        Next k
        area = area + Abs(twice) / 2
        at = at + overlap(at) + 1
    Loop
    GeometryOverlapArea = area
End Function

' #VALUE! for what is no polygon or cannot be clipped. Room is doubled as long as the pieces need more.
Private Sub Clip(ByVal a As Variant, ByVal b As Variant, ByRef x() As Double, ByRef y() As Double, _
    ByRef difference() As Long, ByRef overlap() As Long, ByRef fault As Long)
    Dim pointsA() As Double, pointsB() As Double, positionsA() As Long, positionsB() As Long
    Dim room As Long, capacity As Long
    Dim verticesA As Long, verticesB As Long, used As Long, crossings As Long, status As Long
    verticesA = DoublesOf(a, 2, -1E+300, 1E+300, pointsA, fault)
    verticesB = DoublesOf(b, 2, -1E+300, 1E+300, pointsB, fault)
    If verticesA < 3 Or verticesB < 3 Then Reject fault, errorValue
    room = firstRoom
    crossings = 1024
    status = 7
    Do While fault = 0 And IsShortOfRoom(status) And room <= mostRoom
        used = verticesA + verticesB
        capacity = used + room
        ReDim x(0 To capacity - 1), y(0 To capacity - 1), difference(0 To capacity - 1), overlap(0 To capacity - 1)
        Place pointsA, 0, x, y, positionsA
        Place pointsB, verticesA, x, y, positionsB
        HOHOLEDP x(0), y(0), verticesA, positionsA(0), verticesB, positionsB(0), capacity, crossings, capacity, _
            capacity, used, difference(0), overlap(0), status
        room = 2 * room
    Loop
    If status <> 0 Then Reject fault, errorValue
End Sub

Private Sub Place(ByRef points() As Double, ByVal first As Long, ByRef x() As Double, ByRef y() As Double, _
    ByRef positions() As Long)
    Dim k As Long
    ReDim positions(0 To UBound(points) \ 2)
    For k = 0 To UBound(positions)
        x(first + k) = points(2 * k)
        y(first + k) = points(2 * k + 1)
        positions(k) = first + k + 1
    Next k
End Sub

' A list has the number of vertices of each piece, their positions from 1, negative where a bridge begins, and a 0.
Private Function Listed(ByRef list() As Long) As Long
    Dim at As Long
    Do While list(at) <> 0
        Listed = Listed + list(at)
        at = at + list(at) + 1
    Loop
End Function

Private Sub Unfold(ByVal which As Long, ByRef list() As Long, ByRef x() As Double, ByRef y() As Double, _
    ByRef cells As Variant, ByRef n As Long)
    Dim at As Long, piece As Long, k As Long
    Do While list(at) <> 0
        piece = piece + 1
        For k = at + 1 To at + list(at)
            n = n + 1
            cells(n, 1) = which
            cells(n, 2) = piece
            cells(n, 3) = x(Abs(list(k)) - 1)
            cells(n, 4) = y(Abs(list(k)) - 1)
        Next k
        at = at + list(at) + 1
    Loop
End Sub
