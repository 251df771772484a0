' The explanation control by itself: bound to a loan that the host hands over, it raises its own event.

Dim relay, host, control, door, listener, answerer, kolom, leningen, cancel
Set relay = CreateObject("BrivaneTest.Relay")
Set host = NewHost()
Set leningen = host.Dossier.HuidigeLening
Set kolom = leningen.VrijeKolommen(1)
Set control = relay.Make("BrivaneVrijeKolom.Toelichting")
Set door = relay.Door(control)
door.Set "today", DateSerial(2026, 11, 21)
Set listener = New Listener
Set answerer = New Answerer
door.Callback = answerer
relay.Listen control, listener

control.SetApplication host, leningen, 1
Same "bound", 0, host.reports
Same "row of the effect", "KEY1", door.Read("lstToelichting", "selected")
door.Perform "jnWW", "toggle", 1
Same "left out of unemployment", True, kolom.UitsluitenWW
Same "told", 1, listener.changes
door.Perform "jnOverlijden", "toggle", 2
Same "included on death", True, kolom.ScenarioOverlijden
Same "percentage refused", 2, door.Perform("TxtPcOvergang", "enter", 0)
Same "its message", "Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48;", answerer.shown
door.Perform "TxtPcOvergang", "enter", 70
door.Perform "TxtEindjaar", "enter", 65
Same "age", 65, kolom.EindleeftijdOvergang
Same "date of that age", DateSerial(2040, 12, 31), kolom.EinddatumOvergang
Same "told of each", 4, listener.changes
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
relay.Silence
Set door = Nothing
Set control = Nothing
Same "unloaded", False, relay.Loaded

Finish 14
