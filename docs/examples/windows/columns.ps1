# The same host in PowerShell: it changes the columns, and shows the calendars until it is told to go on.
#   powershell -STA -File columns.ps1
$calendar = New-Object -ComObject Ferrowind.Calendar
$version = $calendar.Version
"{0} {1}.{2}.{3}" -f $version[0], $version[1], $version[2], $version[3]

# The columns are changed before the window is shown. Arguments that are objects by reference need [ref].
$headers = $calendar.Headers
$headers.LocalNames([ref] "FullDate").Caption = "Day"
$headers.LocalNames([ref] "DayOfYear").Visible = $false

$calendar.Show()
# Messages of the window are handled while a message box is open.
Add-Type -AssemblyName System.Windows.Forms
[void] [System.Windows.Forms.MessageBox]::Show("Close the calendars?", "Host")

if ($calendar.ForceClosing()) { "Closed" } else { "The operator keeps it open" }
[void] [System.Runtime.InteropServices.Marshal]::FinalReleaseComObject($calendar)
