' A host in VBScript: it changes the columns, and shows the calendars until it is told to go on.
'   cscript //nologo columns.vbs
Option Explicit

Dim calendar, version, headers, field
Set calendar = CreateObject("Ferrowind.Calendar")
version = calendar.Version
WScript.Echo version(0) & " " & version(1) & "." & version(2) & "." & version(3)

' The columns are changed before the window is shown.
Set headers = calendar.Headers
headers.LocalNames("FullDate").Caption = "Day"
headers.LocalNames("DayOfYear").Visible = False
For Each field In headers
  If field.Visible Then WScript.Echo field.LocalName & ": " & field.Caption
Next

calendar.Show
' Messages of the window are handled while a message box is open.
MsgBox "Close the calendars?", vbOKOnly, "Host"

If calendar.ForceClosing Then
  WScript.Echo "Closed"
Else
  WScript.Echo "The operator keeps it open"
End If
