' The explanation control by itself: bound to a loan that the host hands over, it raises its own event.

Dim relais, host, control, deur, luisteraar, antwoorder, kolom, leningen, cancel
Set relais = CreateObject("BrivaneProef.Relais")
Set host = NewHost()
Set leningen = host.Dossier.HuidigeLening
Set kolom = leningen.VrijeKolommen(1)
Set control = relais.Maak("BrivaneVrijeKolom.Toelichting")
Set deur = relais.Deur(control)
deur.Set "today", DateSerial(2026, 11, 21)
Set luisteraar = New Luisteraar
Set antwoorder = New Antwoorder
deur.Callback = antwoorder
relais.Luister control, luisteraar

control.SetApplication host, leningen, 1
Same "bound", 0, host.reports
Same "row of the effect", "KEY1", deur.Read("lstToelichting", "selected")
deur.Perform "jnWW", "toggle", 1
Same "left out of unemployment", True, kolom.UitsluitenWW
Same "told", 1, luisteraar.changes
deur.Perform "jnOverlijden", "toggle", 2
Same "included on death", True, kolom.ScenarioOverlijden
Same "percentage refused", 2, deur.Perform("TxtPcOvergang", "enter", 0)
Same "its message", "Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48;", antwoorder.shown
deur.Perform "TxtPcOvergang", "enter", 70
deur.Perform "TxtEindjaar", "enter", 65
Same "age", 65, kolom.EindleeftijdOvergang
Same "date of that age", DateSerial(2040, 12, 31), kolom.EinddatumOvergang
Same "told of each", 4, luisteraar.changes
cancel = False
control.Validation cancel
Same "in order", False, cancel
control.BackColor = 65280
Same "colour", 65280, control.BackColor

control.SetApplication Nothing, Nothing, 0
Set kolom = Nothing
Set leningen = Nothing
Set host = Nothing
Same "let go", 7, terminated
relais.Zwijg
Set deur = Nothing
Set control = Nothing
Same "unloaded", False, relais.Geladen

Finish 14
