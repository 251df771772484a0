' The year-by-year form, made by the script itself and opened by the editor's button.

Class Invuller
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

Dim relais, formulier, deur, invuller, bedrag, host, editor
Set relais = CreateObject("BrivaneProef.Relais")
Set bedrag = New BedragHost
Set invuller = New Invuller
invuller.opened = 0

Set formulier = relais.Maak("BrivaneVrijeKolom.frmScenario")
Set deur = relais.Deur(formulier)
deur.Callback = invuller
formulier.SoortScenario = 1
Same "kind kept", 1, formulier.SoortScenario
formulier.DisableJaar(3) = True
formulier.BackColor = 255
Same "colour kept", 255, formulier.BackColor
formulier.Invoeren bedrag, 5, 0, 0, False, False, 0
invuller.mode = "ok"
formulier.Tonen Nothing
Same "shown once", 1, invuller.opened
Same "row 3 locked", True, invuller.locked
Same "base value", 100, bedrag.waarde
' rows 100, 150, 0, 0 ticked, 0: entries for rows 2, 3, 4 and 5, by month
Same "entries", 4, bedrag.perioden.Count
Same "month of row 2", 13, bedrag.Periode(1).Maand
Same "amount of row 2", 150, bedrag.Periode(1).Bedrag
Same "month of row 4", 37, bedrag.Periode(3).Maand
Same "yearly in row 4", True, bedrag.Periode(3).Eenmalig
Same "not yearly in row 5", False, bedrag.Periode(4).Eenmalig

' once closed, the next one is a new form
Same "kind of a closed form", 1, formulier.SoortScenario
formulier.Invoeren bedrag, 5, 0, 0, False, False, 0
Same "kind of a new form", 0, formulier.SoortScenario
invuller.mode = "close"
formulier.Tonen
Same "not locked any more", False, invuller.locked
Same "base value is written at once", 300, bedrag.waarde
Same "the entries stay", 150, bedrag.Periode(1).Bedrag

' the grid is built once
formulier.Invoeren bedrag, 5, 0, 0, False, False, 0
On Error Resume Next
formulier.Invoeren bedrag, 5, 0, 0, False, False, 0
Same "not twice", 5, Err.Number
Err.Clear
formulier.DisableJaar(0) = True
Same "no row 0", 9, Err.Number
On Error Goto 0
Set formulier = Nothing
Set deur = Nothing

' by the editor's button
Set host = NewHost()
Set editor = relais.Maak("BrivaneVrijeKolom.VrijeKolom")
Set deur = relais.Deur(editor)
deur.Callback = invuller
deur.Set "today", DateSerial(2026, 11, 21)
editor.SetApplication host, 0, 1
invuller.mode = "ok"
invuller.opened = 0
deur.Perform "cmdScenario", "press"
Same "shown by the editor", 1, invuller.opened
Same "amount of the first row", 100, host.Dossier.HuidigeLening.VrijeKolommen(1).Bedrag.waarde
Same "shown in the editor", 100, deur.Read("TxtBd", "value")
Same "no failure", 0, host.reports

Set deur = Nothing
Set editor = Nothing
Same "unloaded", False, relais.Geladen

Finish 23
