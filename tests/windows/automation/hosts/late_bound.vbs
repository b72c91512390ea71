' A host that is bound late: it changes the columns, and learns of what is refused by number and text.
Option Explicit

Sub Tell(what)
  If Err.Number = 0 Then
    WScript.Echo what & ": done"
  Else
    WScript.Echo what & ": &H" & Hex(Err.Number) & " " & Err.Description & " [" & Err.Source & "]"
    Err.Clear
  End If
End Sub

Dim calendar, version, headers, field, name, last, count
Set calendar = CreateObject("Ferrowind.Calendar")
version = calendar.Version
WScript.Echo version(0) & " " & version(1) & "." & version(2) & "." & version(3) & " " & UBound(version) & " " & IsEmpty(version(4))

Set headers = calendar.Headers
Set field = headers.LocalNames("fulldate")
WScript.Echo headers.Count & " " & field.Caption & " " & field.FieldName & " " & field.Index & " " & field.IsConst
WScript.Echo "Same: " & (headers Is calendar.Headers) & " " & (field Is headers.Fields(1))

On Error Resume Next
field.Caption = "Tag"
Tell "Caption"
field.LocalName = "Other"
Tell "LocalName"
headers.Add "Mine", "F1"
Tell "Add of two"
name = "Second"
headers.Add name, "F2", , False
Tell "Add with a gap"
WScript.Echo headers.LocalNames("Mine").Caption & " " & headers.LocalNames("Second").Visible
headers.Add name, "F3"
Tell "Add again"
Set field = headers.Fields(99)
Tell "Fields"
headers.RemoveByFieldIndex "F1"
Tell "RemoveByFieldIndex"

count = 0
For Each field In headers
  count = count + 1
  last = field.LocalName
Next
WScript.Echo count & " " & last
WScript.Echo calendar.ForceClosing
