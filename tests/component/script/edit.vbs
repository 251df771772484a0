' Every kind of field, edited as a person would, is written into the script's records with the type that it has.

Dim relay, host, editor, door, listener, kolom, startDay
Set relay = CreateObject("BrivaneTest.Relay")
Set host = NewHost()
Set kolom = host.Dossier.HuidigeLening.VrijeKolommen(1)
Set editor = relay.Make("BrivaneVrijeKolom.VrijeKolom")
Set door = relay.Door(editor)
door.Set "today", DateSerial(2026, 11, 21)
Set listener = New Listener
relay.Listen editor, listener

editor.SetApplication host, 0, 1
Same "no failure of binding", 0, host.reports
Same "name of the applicant", "J. van Dam", door.Read("optAanvrager(1)", "caption")
Same "laid out once", 1, listener.heights
Same "nothing is written by binding", "", journal

' text
Same "text done", 0, door.Perform("TxtOm", "enter", "Vereniging")
Same "text", "Vereniging", kolom.Omschrijving
Same "header text told", "K Vereniging;", listener.texts

' amount
Same "amount done", 0, door.Perform("TxtBd", "enter", 12.5)
Same "amount", 12.5, kolom.Bedrag.waarde
Same "amount is a double", vbDouble, VarType(kolom.Bedrag.waarde)

' date
startDay = DateSerial(2031, 4, 1)
Same "date done", 0, door.Perform("TxtDtAanvang", "enter", startDay)
Same "date", startDay, kolom.DatumAanvang
Same "date is a date", vbDate, VarType(kolom.DatumAanvang)

' whole numbers
door.Perform "TxtAnJaar", "enter", 1
Same "years", 12, kolom.Looptijd
Same "duration has 32 bits", vbLong, VarType(kolom.Looptijd)
Same "end date follows", DateSerial(2032, 4, 1), door.Read("TxtDtEind", "value")
door.Perform "TxtAnMaand", "enter", 14
Same "years and months", 26, kolom.Looptijd
Same "carried to years", 2, door.Read("TxtAnJaar", "value")
door.Perform "TxtDtEind", "enter", DateSerial(2033, 4, 15)
Same "months between two dates", 24, kolom.Looptijd
Same "end date on the day of the start", DateSerial(2033, 4, 1), door.Read("TxtDtEind", "value")

' list of the library
listener.texts = ""
Same "list done", 0, door.Perform("cboTermijn", "choose", "per jaar")
Same "term", 12, kolom.Termijn
Same "term has 16 bits", vbInteger, VarType(kolom.Termijn)
Same "other text told", "W Vereniging;", listener.texts

' options and toggles
door.Perform "optLast(2)", "select"
Same "burden", 2, kolom.CorrectieLast
Same "the fiscal option follows", 2, kolom.CorrectieFiscaal
door.Perform "jnInkUitArbeid", "toggle", 2
door.Perform "jnInDagloon", "toggle", 2
Same "income from work", True, kolom.InkomenUitArbeid
Same "day wage", True, kolom.InDagloon
Same "no partner to choose", 1, door.Perform("optAanvrager(2)", "select")

' check box, and a list of the host
Same "nothing else was called", "Basisbedrag=12.5;", Replace(journal, ",", ".")
journal = ""
door.Perform "chkProduct", "tick", 1
Same "product", True, kolom.IsProduct
Same "the host fills the list, one argument left out", "VulCombo(tabellen,MaatschappijType,,,10);", journal
Same "entries of the host", 3, door.Read("cboMaatschappij", "count")
Same "a product without a kind is another one", 99, kolom.Productsoort
door.Perform "cboMaatschappij", "choose", "Beta Verzekeringen"
Same "company code", "BV", kolom.Maatschappij
Same "company name", "Beta Verzekeringen", kolom.MaatschappijNaam
door.Perform "cboMaatschappij", "choose", 2
door.Perform "txtMaatschappij", "enter", "Gamma"
Same "other company", "ZZ Gamma", kolom.Maatschappij & " " & kolom.MaatschappijNaam
door.Perform "cboProductsoort", "choose", "Krant"
Same "kind", 44, kolom.Productsoort
Same "a contract shows its expiry date", True, door.Read("fraVervaldatum", "visible")
door.Perform "txtVervaldatum", "enter", DateSerial(2035, 1, 31)
Same "expiry date", DateSerial(2035, 1, 31), kolom.Contractvervaldatum
door.Perform "txtProductnaam", "enter", "Ochtendblad"
Same "product name", "Ochtendblad", kolom.Productnaam
door.Perform "jnUwBemiddeling", "toggle", 1
Same "brokerage", False, kolom.UwBemiddeling

' proposals: an indexed property, and a call with two arguments
journal = ""
Same "proposals hidden", False, door.Read("fraBeeindigen", "visible")
editor.BeeindigenZichtbaar = True
Same "proposals shown", True, door.Read("fraBeeindigen", "visible")
door.Perform "ChkVoorstel(2)", "tick", 1
Same "proposal", "Voorstel2=J;VoegToe(2,1);", journal

' the explanation inside the editor
door.Perform "Toelichting.jnAO", "toggle", 1
Same "left out of disability", True, kolom.UitsluitenAO
door.Perform "Toelichting.jnOverlijden", "toggle", 2
door.Perform "Toelichting.TxtPcOvergang", "enter", 62.5
Same "percentage", 62.5, kolom.PercentageOvergang
Same "percentage is a single", vbSingle, VarType(kolom.PercentageOvergang)
door.Perform "Toelichting.txtEinddatum", "enter", DateSerial(2040, 12, 31)
Same "end of the transition", DateSerial(2040, 12, 31), kolom.EinddatumOvergang
Same "age at the end", 65, kolom.EindleeftijdOvergang

Same "changed", True, door.Read("", "changed")
Same "not filling", False, door.Read("", "filling")
Same "no failure at all", 0, host.reports

relay.Silence
Set door = Nothing
Set editor = Nothing
Same "unloaded", False, relay.Loaded

Finish 54
