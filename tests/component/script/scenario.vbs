' The year-by-year form, made by the script itself and opened by the editor's button.

Class Filler
  Public answer : Public opened : Public caption
  Public locked : Public mode
  Public Function Message(title, text, style)
    Message = 1
  End Function
  Public Sub Form(door)
    opened = opened + 1
    caption = door.Read("", "caption")
    locked = Not door.Read("txtBedrag(3)", "enabled")
    If mode = "ok" Then
      door.Perform "txtBedrag(1)", "enter", 100
      door.Perform "txtBedrag(2)", "enter", 150
      door.Perform "chkEenmalig(4)", "tick", 1
      door.Perform "cmdOK", "press"
    ElseIf mode = "close" Then
      door.Perform "txtBedrag(1)", "enter", 300
      door.Perform "txtBedrag(2)", "enter", 400
      door.Perform "", "close"
    End If
  End Sub
End Class

Dim relay, yearForm, door, filler, bedrag, host, editor
Set relay = CreateObject("BrivaneTest.Relay")
Set bedrag = New BedragHost
Set filler = New Filler
filler.opened = 0

Set yearForm = relay.Make("BrivaneVrijeKolom.frmScenario")
Set door = relay.Door(yearForm)
door.Callback = filler
yearForm.SoortScenario = 1
Same "kind kept", 1, yearForm.SoortScenario
yearForm.DisableJaar(3) = True
yearForm.BackColor = 255
Same "colour kept", 255, yearForm.BackColor
yearForm.Invoeren bedrag, 5, 0, 0, False, False, 0
filler.mode = "ok"
yearForm.Tonen Nothing
Same "shown once", 1, filler.opened
Same "row 3 locked", True, filler.locked
Same "base value", 100, bedrag.waarde
' rows 100, 150, 0, 0 ticked, 0: entries for rows 2, 3, 4 and 5, by month
Same "entries", 4, bedrag.perioden.Count
Same "month of row 2", 13, bedrag.Periode(1).Maand
Same "amount of row 2", 150, bedrag.Periode(1).Bedrag
Same "month of row 4", 37, bedrag.Periode(3).Maand
Same "yearly in row 4", True, bedrag.Periode(3).Eenmalig
Same "not yearly in row 5", False, bedrag.Periode(4).Eenmalig

' once closed, the next one is a new form
Same "kind of a closed form", 1, yearForm.SoortScenario
yearForm.Invoeren bedrag, 5, 0, 0, False, False, 0
Same "kind of a new form", 0, yearForm.SoortScenario
filler.mode = "close"
yearForm.Tonen
Same "not locked any more", False, filler.locked
Same "base value is written at once", 300, bedrag.waarde
Same "the entries stay", 150, bedrag.Periode(1).Bedrag

' the grid is built once
yearForm.Invoeren bedrag, 5, 0, 0, False, False, 0
On Error Resume Next
yearForm.Invoeren bedrag, 5, 0, 0, False, False, 0
Same "not twice", 5, Err.Number
Err.Clear
yearForm.DisableJaar(0) = True
Same "no row 0", 9, Err.Number
On Error Goto 0
Set yearForm = Nothing
Set door = Nothing

' by the editor's button
Set host = NewHost()
Set editor = relay.Make("BrivaneVrijeKolom.VrijeKolom")
Set door = relay.Door(editor)
door.Callback = filler
door.Set "today", DateSerial(2026, 11, 21)
editor.SetApplication host, 0, 1
filler.mode = "ok"
filler.opened = 0
door.Perform "cmdScenario", "press"
Same "shown by the editor", 1, filler.opened
Same "amount of the first row", 100, host.Dossier.HuidigeLening.VrijeKolommen(1).Bedrag.waarde
Same "shown in the editor", 100, door.Read("TxtBd", "value")
Same "no failure", 0, host.reports

Set door = Nothing
Set editor = Nothing
Same "unloaded", False, relay.Loaded

Finish 23
