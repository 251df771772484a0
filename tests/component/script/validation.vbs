' The host's check before it leaves the column: refused and passed, its argument handed back by reference.

Dim relay, host, editor, door, answerer, kolom, other, cancel
Set relay = CreateObject("BrivaneTest.Relay")
Set host = NewHost()
Set kolom = host.Dossier.HuidigeLening.VrijeKolommen(1)
Set editor = relay.Make("BrivaneVrijeKolom.VrijeKolom")
Set door = relay.Door(editor)
Set answerer = New Answerer
door.Callback = answerer
editor.SetApplication host, 0, 1

cancel = False
editor.Validation cancel
Same "refused without a start date", True, cancel
Same "refused as a boolean", vbBoolean, VarType(cancel)
Same "message", "Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48;", answerer.shown
Same "bookkeeping of the proposals", "VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);", journal

' refused already: nothing is asked
answerer.shown = ""
cancel = True
editor.Validation cancel
Same "stays refused", True, cancel
Same "nothing asked", "", answerer.shown

' one check alone
cancel = False
editor.Validation cancel, 2
Same "the end date alone is in order", False, cancel
editor.Validation cancel, 1
Same "the start date alone is not", True, cancel

' a value that is handed over instead of a variable
answerer.shown = ""
editor.Validation False, 1
Same "checked all the same", "Ontbrekende invoer|Voer s.v.p. een aanvangsdatum in.|48;", answerer.shown

' a refused edit
answerer.shown = ""
door.Perform "TxtDtAanvang", "enter", DateSerial(2031, 4, 1)
Same "end before start refused", 2, door.Perform("TxtDtEind", "enter", DateSerial(2031, 3, 1))
Same "its message", "Onjuiste invoer|De einddatum dient na de aanvangsdatum te liggen.|48;", answerer.shown
Same "nothing written", 0, kolom.Looptijd
Same "as typed", DateSerial(2031, 3, 1), door.Read("TxtDtEind", "value")
door.Perform "TxtDtEind", "enter", DateSerial(2031, 10, 1)
Same "written", 6, kolom.Looptijd

' passed, with the question whether to carry the changes over
Set other = New KolomHost
other.Id = 1
host.Dossier.nieuwe.kolommen.Add "1", other
answerer.shown = ""
answerer.answer = 6
journal = ""
cancel = False
editor.Validation cancel
Same "passed", False, cancel
Same "asked", "Wijzigingen overnemen|Wilt u de wijzigingen overnemen in de nieuwe situatie?|36;", answerer.shown
Same "taken out of the new situation", 0, host.Dossier.nieuwe.kolommen.Count
Same "and out of the proposals, then the bookkeeping", _
     "VerwijderVrijeKolom(1);VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);" & _
     "VerwijderUit(1,1,0);VerwijderUit(2,1,0);VerwijderUit(3,1,0);", journal
Same "no longer changed", False, door.Read("", "changed")

' the explanation's own check
cancel = False
door.Perform "Toelichting.jnOverlijden", "toggle", 2
answerer.shown = ""
answerer.answer = Empty
editor.Toelichting.Validation cancel
Same "explanation refused", True, cancel
Same "its own message", "Onjuiste invoer|Overgangspercentage partner van 1% t/m 100% invullen.|48;", answerer.shown
Same "no failure", 0, host.reports

Set door = Nothing
Set editor = Nothing
Same "unloaded", False, relay.Loaded

Finish 23
