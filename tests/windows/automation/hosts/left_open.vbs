' A host that ends while its calendars are open, and has nothing but the failure to tell that they are.
Dim calendar, headers
Set calendar = CreateObject("Ferrowind.Calendar")
calendar.Show
On Error Resume Next
Set headers = calendar.Headers
WScript.Echo Hex(Err.Number)
WScript.Quit 0
