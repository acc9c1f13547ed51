<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation>Ein Bild; Entf entfernt es</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Announcement</name>
    <message>
        <source>Announcements</source>
        <translation>Ansagen</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation>das Programm läuft bereits</translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation>das Gerät ist nicht vorhanden</translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation>der Soundserver hat die Aufnahme vom Gerät verweigert</translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation>%1 ist nicht installiert: kein Soundserver antwortet, und es kann keiner gestartet werden</translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation>der private Soundserver ist nicht gestartet</translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation>der private Soundserver ist ohne seine Geräte gestartet</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>kein Soundserver antwortet: %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>die Verbindung zum Soundserver ist abgebrochen</translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation>diese Einheit nimmt nur auf</translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation>die Einheit läuft</translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation>es gibt kein Gerät mit der Nummer %1</translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation>%1 hat keinen Eingang</translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation>es ist kein Gerät gesetzt</translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation>die Einheit liefert nur 32-Bit-Gleitkomma, einen Puffer je Kanal, mit der Abtastrate des Geräts</translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation>es ist kein Gerät oder kein Callback gesetzt</translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation>der Eingang ist nicht aktiviert</translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation>die Einheit ist nicht initialisiert</translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation>der Soundserver nimmt Verbindungen an, antwortet aber nicht. Starten Sie ihn neu (systemctl --user restart pipewire) und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation>der Stream ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation>das Gerät ist nicht mehr da</translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation>kein Soundserver antwortet: ein privater wurde gestartet, sein Eingabegerät ist ein Testton</translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Häkchen umschalten</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>Die Datei selbst bleibt erhalten</translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation>Noch keine Musik. Klicken Sie auf „Dateien hinzufügen…“ oder ziehen Sie Audiodateien hierher.</translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation>Wiedergabeposition</translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation>Kurze Aufnahmen</translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation>Aufnahmen von &amp;höchstens</translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation>0 zeigt alle Aufnahmen.</translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation>Aufnahmen von höchstens so vielen Sekunden</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation>Kurze Aufnahmen</translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation>Angehakte Aufnahmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation>%1 angehakt, %2</translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation>Möchten Sie diese Einträge in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation>Wiedergabezeiger</translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Recording level</source>
        <translation>Aufnahmepegel</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, clipped</source>
        <translation>%1 %, übersteuert</translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Wird wiedergegeben</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>No mark</source>
        <translation>Keine Markierung</translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation>Zu behaltender Bereich</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Abspielposition</translation>
    </message>
    <message>
        <source>Begin of the range to keep</source>
        <translation>Anfang des Bereichs, der bleibt</translation>
    </message>
    <message>
        <source>End of the range to keep</source>
        <translation>Ende des Bereichs, der bleibt</translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Die Datei „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>In die Datei „%1“ wird noch aufgenommen.</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>Der Bereich ist kürzer als eine Zehntelsekunde.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>Auf dem Datenträger ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation>Die Tags konnten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>die neue Datei</translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation>Der Vorgang wurde vor dem Ende abgebrochen.</translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Wiedergabezeit</translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation>Anfang des Bereichs</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Länge des Bereichs</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>Ende des Bereichs</translation>
    </message>
    <message>
        <source>Set here</source>
        <translation>Hier setzen</translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation>Anfang des Bereichs auf die Wiedergabeposition setzen</translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation>Ende des Bereichs auf die Wiedergabeposition setzen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation>&amp;Vorhören</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>Der Bereich ist kürzer als eine Zehntelsekunde.</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>Die Datei wird gerade wiedergegeben.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>Die Aufnahme kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>Die Aufnahme wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Dieser Pfad existiert bereits, bitte ändern Sie den Pfad oder den Namen.</translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation>Audio wird umgewandelt......</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation>Möchten Sie die Audiodatei „%1“ ersetzen?</translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation>Wellenform</translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation>Ziehen Sie an den Rändern oder in der Mitte. Links und Rechts verschieben die Auswahl, mit Strg ihren Anfang, mit Alt ihr Ende; mit Umschalt um eine Sekunde.</translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation>von %1 bis %2, %3 Sekunden</translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation>Aufnahmestatus</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation>Zwischen Aufnahme und Wiedergabe umschalten</translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation>Nächsten Hinweis anzeigen</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation>Was sich zu dem Hinweis tun lässt</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation>Gerät wählen</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Ton einschalten</translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation>Platz schaffen …</translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation>Hinweis %1 von %2. Den nächsten anzeigen</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Aufnahmezeit</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Gespielt</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Verbleibend</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>Wartet auf den ersten Ton</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Es wird nichts aufgenommen</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Die Aufnahme wird abgeschlossen</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Keine Aufnahme</translation>
    </message>
</context>
<context>
    <name>BalanceSave</name>
    <message>
        <source>It was stopped before the end.</source>
        <translation>Der Vorgang wurde vor dem Ende abgebrochen.</translation>
    </message>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Die Datei „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>In die Datei „%1“ wird noch aufgenommen.</translation>
    </message>
    <message>
        <source>The sum of both tracks is too loud and would be clipped.</source>
        <translation>Die Summe beider Spuren ist zu laut und würde übersteuern.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>die neue Datei</translation>
    </message>
</context>
<context>
    <name>BalanceView</name>
    <message>
        <source>Play position</source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Computerton</translation>
    </message>
</context>
<context>
    <name>BalanceWnd</name>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Wiedergabezeit</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Eingang</translation>
    </message>
    <message>
        <source>Gain of the input</source>
        <translation>Verstärkung des Eingangs</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>&amp;Computerton</translation>
    </message>
    <message>
        <source>Gain of computer audio</source>
        <translation>Verstärkung des Computertons</translation>
    </message>
    <message>
        <source>&amp;Delay of computer audio</source>
        <translation>Computerton-&amp;Verzögerung</translation>
    </message>
    <message>
        <source>Delay of computer audio</source>
        <translation>Verzögerung des Computertons</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>&amp;Lower to Fit</source>
        <translation>Passend &amp;absenken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
</context>
<context>
    <name>BalanceWndController</name>
    <message>
        <source>Silent</source>
        <comment>a track that is not in the mix</comment>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>The tracks cannot be played.</source>
        <translation>Die Spuren können nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>Both gains and the delay are 0.</source>
        <translation>Beide Verstärkungen und die Verzögerung sind 0.</translation>
    </message>
    <message>
        <source>Measuring the loudest point …</source>
        <translation>Lauteste Stelle wird gemessen …</translation>
    </message>
    <message>
        <source>Too loud by %1 dB: the loudest parts would be clipped.</source>
        <translation>Um %1 dB zu laut: die lautesten Stellen würden übersteuern.</translation>
    </message>
    <message>
        <source>The mix is silent.</source>
        <translation>Der Mix ist still.</translation>
    </message>
    <message>
        <source>Loudest point: %1 dB below the limit</source>
        <translation>Lauteste Stelle: %1 dB unter der Grenze</translation>
    </message>
    <message>
        <source>Lowers both gains until nothing is clipped</source>
        <translation>Senkt beide Verstärkungen ab, bis nichts mehr übersteuert</translation>
    </message>
    <message>
        <source>Nothing would be clipped.</source>
        <translation>Es würde nichts übersteuern.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>Die Datei wird gerade wiedergegeben.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>Die Aufnahme kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; with the new mix? Its tracks stay.</source>
        <translation>Möchten Sie „%1“ durch den neuen Mix ersetzen? Die Spuren bleiben erhalten.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Dieser Pfad existiert bereits, bitte ändern Sie den Pfad oder den Namen.</translation>
    </message>
    <message>
        <source>Lower Both by %1 dB</source>
        <translation>Beide um %1 dB absenken</translation>
    </message>
    <message>
        <source>The mix is too loud.</source>
        <translation>Der Mix ist zu laut.</translation>
    </message>
    <message>
        <source>Its loudest parts would be clipped. Lower both gains, and nothing is clipped.</source>
        <translation>Die lautesten Stellen würden übersteuern. Senken Sie beide Verstärkungen ab, dann übersteuert nichts.</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>Die Aufnahme wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The new mix is saved.</source>
        <translation>Der neue Mix ist gespeichert.</translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation>es gibt kein Laufwerk</translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation>Warten auf Musikdateien</translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation>Warten auf eine Disc</translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation>Disc nicht leer, bitte löschen Sie sie</translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation>Disc nicht leer, bitte wechseln Sie sie</translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation>Zu wenig Platz auf der Disc für die Musik</translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation>Bereit zum Brennen</translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation>Auf Disc brennen</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>&amp;Laufwerk:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Disc auswerfen</translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation>Problem des Laufwerks</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Tracks</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation>Anzahl und Größe</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>Gesamtdauer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation>Danach &amp;auswerfen</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Brennen</translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation>Es gibt nichts zu brennen.</translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation>Haken Sie die Dateien an, die zu Tracks werden sollen, und klicken Sie dann auf „Brennen“.</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Dauer: %1</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Disc auswerfen</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>Im Laufwerk liegt keine Disc.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation>
            <numerusform> %n Eintrag     Größe: %1 MB</numerusform>
            <numerusform> %n Einträge     Größe: %1 MB</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation>%1: der Treiber läuft auf diesem Rechner nicht</translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation>%1: kein solches Programm</translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation>der Treiber wurde gestartet, aber sein Gerät ist nicht erschienen</translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation>das System-Audiogerät wird bereits installiert oder entfernt</translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation>es gibt keinen Weg, Administratorrechte zu erhalten</translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation>%1: der Treiber fehlt in den Ressourcen des Programms</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation>--%1: %2 ist keine Zeit in Sekunden</translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation>--%1: %2 ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation>es gibt kein Laufwerk, das Discs beschreibt (--image FILE schreibt ein Disc-Abbild)</translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation>%1: kein solches Laufwerk („sonaphex drives“ listet sie auf)</translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation>%1: das Laufwerk ist belegt</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: im Laufwerk liegt keine Disc</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation>%1: die Disc ist nicht leer: löschen Sie sie oder legen Sie eine andere ein</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation>%1: die Disc ist nicht leer: legen Sie eine andere ein</translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation>%1: mit diesem Laufwerk kann nicht gebrannt werden</translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation>%1; es wurde nichts gebrannt</translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation>das Brennen ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation>burn erwartet die Dateien, die zu Tracks werden</translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation>--image erwartet den Namen einer Datei</translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation>--image und --drive schließen einander aus</translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation>Audiodateien als Audio-CD brennen, je Datei ein Track, oder ein Disc-Abbild schreiben</translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation>Das Laufwerk, mit Namen oder Pfad („sonaphex drives“ listet sie auf).</translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation>das erste Laufwerk</translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation>FILE.cue und FILE.bin statt einer Disc schreiben. Vorhandene Dateien werden nie ersetzt.</translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation>Die Disc auswerfen, wenn sie fertig ist.</translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation>Zwei Tracks brennen und die Disc auswerfen.</translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation>concert.cue und concert.bin schreiben.</translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation>%1 (Vorgabe: %2)</translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation>Aufruf: sonaphex %1</translation>
    </message>
    <message>
        <source>options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation>Aufruf: sonaphex            das Fenster öffnen
        sonaphex FILE       das Fenster öffnen und eine Audiodatei zuschneiden
        sonaphex COMMAND    etwas Bestimmtes tun und enden

Befehle:
</translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation>
„sonaphex COMMAND --help“ listet die Optionen eines Befehls auf, „sonaphex --version“ nennt die Version.
</translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation>es gibt keinen Soundserver</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>die Standardausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation>inaktiv</translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation>wartet auf den ersten Ton</translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation>nimmt auf</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>pausiert</translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation>control erwartet einen Befehl</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: kein solcher Befehl</translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation>das Programm läuft nicht</translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation>auf das laufende Programm einwirken</translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation>Eine Aufnahme im offenen Fenster starten oder stoppen.</translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation>Den Zustand des laufenden Programms für ein Skript ausgeben.</translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation>vor dem Ende abgebrochen: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation>%1 kann nicht umgewandelt werden</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation>%1: endet bei Sekunde %2, ab Sekunde %3 ist nichts vorhanden</translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation>die Quelle ist beschädigt, was lesbar war, wurde umgewandelt: %1</translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation>convert erwartet eine Quelle und ein Ziel</translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation>--type ist wav, m4a oder caf</translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation>--to ist mindestens eine Zehntelsekunde</translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation>--to liegt vor --from</translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation>einen Bereich einer Audiodatei in eine neue Datei kopieren</translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation>Der Typ der neuen Datei.</translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation>nach der Endung von DST</translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation>Bei Sekunde S der Quelle beginnen.</translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation>Bei Sekunde S der Quelle enden.</translation>
    </message>
    <message>
        <source>its end</source>
        <translation>ihr Ende</translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation>Über S Sekunden einblenden; eine Blende unter einer Sekunde entfällt.</translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation>Über S Sekunden ausblenden; eine Blende unter einer Sekunde entfällt.</translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation>Den Bereich wiederholen, bis die neue Datei S Sekunden lang ist.</translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation>die Länge des Bereichs</translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation>DST ersetzen, wenn es existiert.</translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation>Zehneinhalb Sekunden in eine WAVE-Datei kopieren.</translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation>Zehn Sekunden eine halbe Minute lang wiederholen, mit Blenden.</translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation>devices erwartet keine Namen</translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation>1 Kanal</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n Kanal</numerusform>
            <numerusform>%n Kanäle</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation>%1, %2 Hz, was der Computer wiedergibt</translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation>%1, %2 Hz</translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation>keine Eingabegeräte</translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation>Standard-Ausgabegerät: %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation>keins</translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation>die Eingabegeräte auflisten</translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation>Die Geräte für ein Skript auflisten.</translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation>installiert: %1</translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation>installiert: nein</translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation>geladen: %1</translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation>geladen: nein</translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation>geladen: nein (kein Soundserver antwortet)</translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation>der Treiber bleibt, wie er ist, solange das Fenster aufnimmt: stoppen Sie zuerst die Aufnahme</translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation>der Treiber kann nicht geladen werden: kein Soundserver antwortet</translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation>der Treiber wurde nicht installiert: %1</translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation>der Treiber wurde nicht entfernt: %1</translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation>driver erwartet status, install oder remove</translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation>das Gerät für den Computerton anzeigen, installieren oder entfernen</translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation>Das Gerät installieren und laden. Fragt nach dem Administratorpasswort.</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>belegt</translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation>das Laufwerk ist noch nicht bereit</translation>
    </message>
    <message>
        <source>no disc</source>
        <translation>keine Disc</translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation>Disc</translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation>%1, nicht leer, kann gelöscht werden</translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation>%1, nicht leer</translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation>%1, leer, %2 min %3 s Audio</translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation>drives erwartet keine Namen</translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation>die Laufwerke auflisten, die Discs beschreiben, und was darin liegt</translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation>Die Laufwerke für ein Skript auflisten.</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation>es gibt kein Eingabegerät „%1“: es gibt überhaupt keins</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation>es gibt kein Eingabegerät „%1“: vorhanden sind %2</translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation>join erwartet zwei oder mehr Dateien</translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation>join braucht --to mit der zu schreibenden Datei</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation>%1: diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation>mehrere Aufnahmen in der angegebenen Reihenfolge zu einer verbinden</translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation>Die zu schreibende Aufnahme. Eine vorhandene Datei bleibt erhalten.</translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation>Zwei Teile einer Aufnahme ohne erneutes Kodieren verbinden. Andere Dateien werden dekodiert und kodiert.</translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation>%1, aber das laufende Programm kennt diese Anfrage nicht: es ist eine andere Version</translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation>%1, aber die Bibliothek konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation>%1 konnte nicht zur Bibliothek hinzugefügt werden</translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation>Klingeltöne</translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation>das laufende Programm kennt diese Anfrage nicht: es ist eine andere Version</translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation>kein Eintrag hat den Schlüssel %1 (es wurde nichts entfernt)</translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation>die Dateien sind gelöscht, aber die Bibliothek konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation>library kennt list und remove, nicht %1</translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation>library remove erwartet die Schlüssel von Einträgen</translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation>Aufnahmen und Klingeltöne auflisten oder einige samt ihren Dateien entfernen</translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation>Beide Sammlungen mit dem Schlüssel jedes Eintrags auflisten.</translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation>Einen Eintrag entfernen und seine Datei löschen.</translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation>manual erwartet keine Argumente</translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation>completions erwartet bash, zsh oder fish</translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation>die Handbuchseite ausgeben</translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation>Die Handbuchseite lesen.</translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation>die Vervollständigungen für eine Shell ausgeben</translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation>Die Vervollständigungen für die bash des aktuellen Benutzers installieren.</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: ist ein Ordner</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: kein solcher Ordner</translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation>%1: dieser Pfad ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation>%1: existiert bereits (--overwrite ersetzt sie)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation>in den Ordner %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation>record erwartet nur Optionen</translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation>--for erwartet eine Zeit über 0</translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation>--pre-roll erwartet höchstens %1 Millisekunden</translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation>--folder erwartet einen Ordner</translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation>ohne Eingabegerät und ohne --computer gibt es nichts aufzunehmen</translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation>ein Eingabegerät, den Computerton oder beides in .m4a-Dateien aufnehmen</translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation>Das Eingabegerät mit diesem Namen, dieser UID oder ID aufnehmen; none nimmt kein Eingabegerät auf.</translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation>das Gerät und die Wahl aus den Einstellungen</translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation>Aufnehmen, was der Computer wiedergibt.</translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation>Nach S Sekunden aufgenommenem Ton stoppen, über alle Dateien gerechnet.</translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation>bis Strg+C</translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation>Beim Warten auf den ersten Ton nach S Sekunden aufgeben.</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation>Nach einer Stille von MS Millisekunden im Computerton eine neue Datei beginnen.</translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation>wie in den Einstellungen</translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation>Beim Warten auf den ersten Ton MS Millisekunden davor beginnen, höchstens 5000.</translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation>Eine Aufnahme, die kürzer als S Sekunden ist, verwerfen.</translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation>Die Aufnahmen in DIR ablegen; es wird bei Bedarf angelegt.</translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation>Zehn Sekunden vom Eingabegerät aufnehmen.</translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation>Ein benanntes Gerät bis Strg+C in den aktuellen Ordner aufnehmen.</translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation>Aufnehmen, was der Computer wiedergibt, eine Datei je Lied, und aufgeben, wenn eine Minute lang nichts läuft.</translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation>eine Aufnahme konnte nicht fertiggestellt werden</translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation>Computerton: der Treiber ist nicht installiert (siehe sonaphex driver install)</translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation>es gibt kein Eingabegerät</translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation>es gibt keine Quelle zum Aufnehmen: nennen Sie eine mit --input oder --computer</translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation>es kann nichts aufgenommen werden</translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation>wartet auf den ersten Ton</translation>
    </message>
    <message>
        <source>finishing</source>
        <translation>stellt fertig</translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation>es kam kein Ton: nichts wurde aufgenommen</translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation>eine Aufnahme war kürzer als die Zeit des Filters und wurde nicht behalten</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation>
            <numerusform>%n Aufnahme war kürzer als die Zeit des Filters und wurde nicht behalten</numerusform>
            <numerusform>%n Aufnahmen waren kürzer als die Zeit des Filters und wurden nicht behalten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation>%1: das Aufgenommene bleibt in %2 erhalten</translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation>%1 ist erstellt, aber das laufende Programm kennt diese Anfrage nicht: es ist eine andere Version</translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation>%1 ist erstellt, aber die Bibliothek konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation>%1: endet bei Sekunde %2, --to ist %3</translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation>vor dem Ende abgebrochen: es wurde kein Klingelton erstellt</translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation>die Quelle ist beschädigt, der Klingelton ist still, wo sie nicht lesbar war: %1</translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation>ringtone erwartet eine Datei</translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation>ringtone braucht --from und --to</translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation>--to liegt nicht nach --from</translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation>aus einem Bereich einer Aufnahme einen Klingelton erstellen und zur Bibliothek hinzufügen</translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation>Bei Sekunde S der Aufnahme beginnen.</translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation>Bei Sekunde S der Aufnahme enden.</translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation>Aus dieser halben Minute einen Klingelton erstellen.</translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation>längste gefundene Stille: %1 s</translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation>%1: keine Stille von %2 s; die längste dauert %3 s</translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation>split erwartet eine Datei</translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation>split braucht --silence mit mindestens %1 Millisekunden</translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation>--level erwartet Dezibel von -120 bis unter 0</translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation>eine Aufnahme an stillen Stellen in mehrere teilen, ohne sie neu zu kodieren</translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation>In der Mitte jeder Stille von mindestens MS Millisekunden (50 oder mehr) schneiden.</translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation>Als Stille gilt, was unter DB Dezibel bezogen auf Vollpegel liegt, von -120 bis unter 0.</translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation>Die Teile in DIR ablegen.</translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation>der Ordner der Aufnahme</translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation>Nur die Schnitte und die längste Stille auflisten; nichts schreiben.</translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation>a 1.m4a, a 2.m4a und so weiter neben a.m4a erstellen, das unverändert bleibt.</translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation>Ansehen, wo die Schnitte lägen.</translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation>Ein JSON-Dokument statt Text ausgeben.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation>keins</translation>
    </message>
    <message>
        <source>title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>artist:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>album:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>year:</source>
        <translation>Jahr:</translation>
    </message>
    <message>
        <source>genre:</source>
        <translation>Genre:</translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation>Cover:</translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation>das Cover von %1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation>tag erwartet eine Datei</translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation>--year: %1 ist keine Zahl</translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation>die Datei ist geändert</translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation>die Tags und das Cover einer MPEG-4-Audiodatei ausgeben oder schreiben</translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation>Diesen Titel schreiben. Ein leerer Text entfernt das Tag; das gilt auch für die anderen Texte.</translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation>Diesen Interpreten schreiben.</translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation>Dieses Album schreiben.</translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation>Dieses Jahr schreiben; 0 entfernt das Tag.</translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation>Dieses Genre schreiben.</translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation>Das Cover aus dieser Bilddatei nehmen.</translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation>Die Datei nach ihrem Titel umbenennen, sofern der Name frei und möglich ist.</translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation>Die Tags ausgeben.</translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation>Einen Titel und ein Cover schreiben.</translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation>Einen Titel schreiben und die Datei Morning.m4a nennen.</translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation>%1: Dieser Pfad existiert bereits, bitte ändern Sie den Pfad oder den Namen.</translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation>%1: die Datei wird gerade wiedergegeben</translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation>die Datei ist zugeschnitten</translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation>trim erwartet eine Datei</translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation>trim erwartet --from, --to oder beides</translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation>--to muss mindestens eine Zehntelsekunde nach --from liegen</translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation>--save-as nennt keine Datei</translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation>eine Aufnahme auf einen Bereich zuschneiden, an ihrer Stelle oder in eine neue Datei</translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation>Eine neue Datei schreiben und die Aufnahme unverändert lassen. Eine vorhandene Datei bleibt erhalten.</translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation>die Aufnahme wird ersetzt</translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation>Die ersten zweieinhalb Sekunden und alles nach einer Minute abschneiden.</translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation>Zehn Sekunden in eine neue Aufnahme kopieren.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation>
            <numerusform>%1: %n Wert ist zu wenig für ein Bild</numerusform>
            <numerusform>%1: %n Werte sind zu wenig für ein Bild</numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation>waveform erwartet eine Datei</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>vor dem Ende abgebrochen</translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation>die Datei ist beschädigt, angezeigt wird, was lesbar war: %1</translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation>zehn Werte der Wellenform einer Datei je Sekunde ausgeben</translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation>Die Wellenform in eine PNG-Datei zeichnen, statt sie auszugeben.</translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation>FILE ersetzen, wenn es existiert.</translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation>Die Wellenform einer Aufnahme zeichnen.</translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation>%1: kein solcher Befehl und keine solche Datei (siehe sonaphex help)</translation>
    </message>
    <message>
        <source>burning</source>
        <translation>brennt</translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation>%1, %2 in Fertigstellung</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 Byte</translation>
    </message>
    <message>
        <source>disc image</source>
        <translation>Disc-Abbild</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a list of the library and how many are in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>--app and --not-app exclude each other</source>
        <translation>--app und --not-app schließen einander aus</translation>
    </message>
    <message>
        <source>--%1 takes the name of a program</source>
        <translation>--%1 verlangt den Namen eines Programms</translation>
    </message>
    <message>
        <source>Of computer audio, record only this program; may be given several times.</source>
        <translation>Vom Computerton nur dieses Programm aufnehmen; mehrmals möglich.</translation>
    </message>
    <message>
        <source>with --computer everything, else as in the preferences</source>
        <translation>mit --computer alles, sonst wie in den Einstellungen</translation>
    </message>
    <message>
        <source>Of computer audio, record everything but this program; may be given several times.</source>
        <translation>Vom Computerton alles außer diesem Programm aufnehmen; mehrmals möglich.</translation>
    </message>
    <message>
        <source>Record one program, whatever else plays.</source>
        <translation>Ein Programm aufnehmen, was auch sonst spielt.</translation>
    </message>
    <message>
        <source>Of computer audio, give each file the title, artist, album and cover that the media player names.</source>
        <translation>Beim Computerton jeder Datei Titel, Interpret, Album und Cover geben, die der Medien-Player nennt.</translation>
    </message>
    <message>
        <source>Of computer audio, begin a new file when the media player goes on to another track.</source>
        <translation>Beim Computerton eine neue Datei beginnen, wenn der Medien-Player zu einem anderen Stück wechselt.</translation>
    </message>
    <message>
        <source>Record an album without pauses, one file with its title for each track.</source>
        <translation>Ein Album ohne Pausen aufnehmen, eine Datei je Stück mit dessen Titel.</translation>
    </message>
    <message>
        <source>%1: no tracks were kept of this recording</source>
        <translation>%1: zu dieser Aufnahme wurden keine Spuren behalten</translation>
    </message>
    <message>
        <source>both gains were lowered by %1 dB, so that nothing is clipped</source>
        <translation>beide Verstärkungen wurden um %1 dB abgesenkt, damit nichts übersteuert</translation>
    </message>
    <message>
        <source>the new mix is saved</source>
        <translation>der neue Mix ist gespeichert</translation>
    </message>
    <message>
        <source>--%1: %2 is not a number</source>
        <translation>--%1: %2 ist keine Zahl</translation>
    </message>
    <message>
        <source>balance takes one file</source>
        <translation>balance erwartet eine Datei</translation>
    </message>
    <message>
        <source>gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds</source>
        <translation>Verstärkungen gehen von -60 bis 20 Dezibel, die Verzögerung von -2000 bis 2000 Millisekunden</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to nennt keine Datei</translation>
    </message>
    <message>
        <source>mix the kept tracks of a recording anew, in its place or into a new file</source>
        <translation>die behaltenen Spuren einer Aufnahme neu mischen, an ihrer Stelle oder in eine neue Datei</translation>
    </message>
    <message>
        <source>Make the input louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Den Eingang um DB Dezibel lauter machen, bei negativem Wert leiser; -60 ist Stille.</translation>
    </message>
    <message>
        <source>Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Den Computerton um DB Dezibel lauter machen, bei negativem Wert leiser; -60 ist Stille.</translation>
    </message>
    <message>
        <source>Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000.</source>
        <translation>Den Computerton um MS Millisekunden nach hinten verschieben, bei negativem Wert nach vorn; höchstens 2000.</translation>
    </message>
    <message>
        <source>Make the microphone louder against what the computer played.</source>
        <translation>Das Mikrofon lauter machen gegenüber dem, was der Computer wiedergegeben hat.</translation>
    </message>
    <message>
        <source>Move computer audio 120 milliseconds later, in a new file.</source>
        <translation>Den Computerton in einer neuen Datei um 120 Millisekunden nach hinten verschieben.</translation>
    </message>
    <message>
        <source>Of a recording of both sources, also keep the input and computer audio, each as a file of its own beside the mix.</source>
        <translation>Bei einer Aufnahme beider Quellen auch Eingang und Computerton behalten, jeweils als eigene Datei neben dem Mix.</translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: kein solcher Ordner</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: keine solche Datei</translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation>%1: der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation>die Datei oder ihre Tags konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Dieser Pfad existiert bereits, bitte ändern Sie den Pfad oder den Namen.</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>vor dem Ende abgebrochen</translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation>ein Teil davon ist beschädigt und kann nicht gemessen werden</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 verbunden</translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation>das Programm wird gerade beendet</translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation>es gibt keine Quelle zum Aufnehmen</translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation>es wird nichts aufgenommen</translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation>unbekannte Anfrage</translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation>es fehlt ein Pfad</translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation>Umwandlungshinweis</translation>
    </message>
    <message>
        <source>The recording is converted.</source>
        <translation>Die Aufnahme ist umgewandelt.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation>die Passwortabfrage wurde abgebrochen</translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation>pkexec ist nicht installiert: Administratorrechte können nicht angefordert werden</translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation>Administratorrechte wurden nicht erteilt</translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation>der Befehl endete mit Status %1</translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation>%1 wurde nicht geöffnet: das laufende Programm antwortet nicht</translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation>das Programm läuft bereits, antwortet aber nicht</translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation>Es kann nichts aufgenommen oder wiedergegeben werden.</translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation>Sonaphex kann nicht starten.</translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation>%1: die Abtastrate kann nicht umgewandelt werden</translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation>%1: enthält kein Audio</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: kein solcher Ordner</translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation>%1: existiert bereits, und ein Abbild ersetzt keine Datei; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation>%1: ein Cue-Sheet kann keine Datei mit Anführungszeichen oder Zeilenumbrüchen nennen; wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation>eine Datei kann nicht gelesen werden: es wurde nichts gebrannt</translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation>es gibt nichts zu brennen: keine Datei ist angehakt</translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation>eine Audio-CD fasst höchstens %1 Tracks, dies sind %2</translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation>Disc-Abbild schreiben</translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation>Das Abbild kann dort nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation>für das Disc-Abbild wurde kein Pfad angegeben</translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation>%1: der Datenträger ist voll: das Abbild braucht %2, %3 sind frei</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation>%1: ist keine Audiodatei</translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation>vor dem Ende abgebrochen: es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation>das Laufwerk kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: im Laufwerk liegt keine Disc</translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation>%1: die Disc ist nicht leer</translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation>%1: das Laufwerk wird nicht betriebsbereit</translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation>%1: diese Disc kann nicht beschrieben werden</translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation>die Disc kann so nicht beschrieben werden: %1</translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation>das Laufwerk nannte keinen Grund</translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation>vor dem Ende abgebrochen: die Disc ist möglicherweise unbrauchbar</translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation>vor dem ersten Sektor abgebrochen: die Disc ist unverändert</translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation>%1: eine Audio-CD braucht eine CD-R oder CD-RW, eingelegt ist: %2</translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation>Disc anderer Art</translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation>die Struktur der Disc konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation>%1 (die Disc ist unbrauchbar)</translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation>%1: das Brennen ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation>%1: diese Disc kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation>%1: das Löschen ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation>keine Rechte für %1: treten Sie der Gruppe bei, der es gehört (oft „cdrom“), und melden Sie sich neu an</translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation>ein anderes Programm benutzt das Laufwerk, oder die Disc ist eingehängt</translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation>das Laufwerk ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: keine solche Datei</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: ist keine Datei</translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation>%1: keine Leserechte</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1: ist leer</translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation>%1: die Datei endet früher als beim Messen</translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation>auf der Disc ist nicht genug Platz: die Tracks brauchen %1 Minuten (%2 Sektoren), %3 Minuten (%4 Sektoren) sind frei</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
</context>
<context>
    <name>EditWindows</name>
    <message>
        <source>%1 cannot be opened: close the open dialog first.</source>
        <translation>%1 kann nicht geöffnet werden: schließen Sie zuerst den offenen Dialog.</translation>
    </message>
    <message>
        <source>The tracks cannot be mixed.</source>
        <translation>Die Spuren können nicht gemischt werden.</translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation>%1: wird von einem anderen Programm benutzt</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine reguläre Datei</translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation>%1 ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation>%1 ist für andere zugänglich</translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation>ein Teil des Programms fehlt: %1</translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation>an %1 antwortet bereits ein Programm</translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation>%1 ist kein Socket dieses Benutzers</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>ist größer als %1</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation>Sonaphex-Support</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>Es wird nichts aufgenommen</translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation>Prüfen Sie, ob im Hauptfenster eine Quelle gewählt ist: ein Eingabegerät, der Computerton oder beides. In einem Terminal listet &lt;code&gt;sonaphex devices&lt;/code&gt; die Eingabegeräte auf, die der Soundserver anbietet.</translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation>Eine Aufnahme des Computertons allein beginnt mit dem ersten Ton, den der Computer wiedergibt.</translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation>Eine Aufnahme fehlt</translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation>Aufnahmen, die kürzer sind als die in den Einstellungen gesetzte Zeit, werden verworfen; schalten Sie den Filter aus, um sie zu behalten. Was nicht fertiggestellt werden konnte, etwa weil der Datenträger voll war, liegt in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation>Der Computerton lässt sich nicht wählen</translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation>Dazu ist eine kleine Erweiterung nötig: siehe &lt;a href=&quot;computer-audio.html&quot;&gt;Computerton aufnehmen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation>Die Einstellungen sind verschwunden</translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation>Sie stehen in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. Eine beschädigte Datei bleibt daneben erhalten, unter einem Namen, der mit &lt;code&gt;.damaged-&lt;/code&gt; und dem Datum endet.</translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation>Computerton aufnehmen</translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation>Die Erweiterung ist ein Eingabegerät namens „Korvane System Audio“, das hört, was das Standard-Ausgabegerät wiedergibt. Sie ist ein kleines Programm der Benutzersitzung, das mit dem Soundserver spricht; sie ändert nichts an dem, was Sie hören, und wird nie zum Standardmikrofon anderer Programme.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation>Wählen Sie „Installieren“ im Einstellungsfenster oder führen Sie &lt;code&gt;sonaphex driver install&lt;/code&gt; aus. Es wird einmal nach dem Passwort eines Administrators gefragt: die Erweiterung wird für alle Benutzer des Computers installiert.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation>Wählen Sie „Entfernen“ an derselben Stelle oder führen Sie &lt;code&gt;sonaphex driver remove&lt;/code&gt; aus.</translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Die Datei „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation>Das Cover von „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written.</source>
        <translation>Die Tags von „%1“ konnten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written: %2</source>
        <translation>Die Tags von „%1“ konnten nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Aus&amp;wählen…</translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation>Ein Bild für das Cover auswählen</translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation>Ziehen Sie ein Bild hierher. Zum Entfernen ziehen Sie es heraus.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation>&amp;Interpret:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation>Al&amp;bum:</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Jahr:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre:</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation>Diese Datei ist kein Bild.</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>Nicht alles konnte gespeichert werden.</translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation>ID3-Umwandlung......</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Control</source>
        <comment>a key of the keyboard</comment>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Super</source>
        <comment>a key of the keyboard</comment>
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>a key of the keyboard</comment>
        <translation>Alt</translation>
    </message>
</context>
<context>
    <name>KeybordShortcutTextView</name>
    <message>
        <source>None</source>
        <translation>Keins</translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation>Der Desktop hat hierfür keine Tasten. Legen Sie in seinen Einstellungen welche fest.</translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation>Diese Tasten sind in den Desktop-Einstellungen festgelegt.</translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation>Keine Tasten in den Desktop-Einstellungen</translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation>Klicken, dann Tasten drücken</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>Tasten drücken</translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation>
            <numerusform>%n Aufnahme</numerusform>
            <numerusform>%n Aufnahmen</numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Überschrift</translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>Die Datei ist nicht mehr vorhanden: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation>„%1“ kann nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation>„%1“ kann nicht wiedergegeben werden: %2</translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation>Der Ordner von „%1“ konnte nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>Für „%1“ konnte kein Player geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation>&amp;Aufnahme</translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation>In neuer Aufnahme &amp;fortfahren</translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation>Diese Datei schließen und in einer neuen weitermachen</translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation>&amp;Eingabegerät aufnehmen</translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation>&amp;Computerton aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>&amp;Tags bearbeiten…</translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation>Titel, Interpret, Album und Cover der Aufnahme</translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation>&amp;Zuschneiden…</translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation>Einen Teil der Aufnahme behalten</translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation>&amp;Klingelton erstellen…</translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation>Einen Klingelton aus der Aufnahme schneiden</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation>Die ausgewählten Aufnahmen und ihre Dateien löschen</translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation>&amp;Suchen…</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Titel, Interpreten und Alben durchsuchen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>Bib&amp;liothek</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation>&amp;Ausgewählte Aufnahme abspielen</translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation>Von Anfang an abspielen</translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation>%1 Sekunden zurück</translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation>%1 Sekunden vor</translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation>Im &amp;Ordner anzeigen</translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation>Die Datei in der Dateiverwaltung anzeigen</translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation>Im Pla&amp;yer öffnen</translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation>Die Datei in Ihrem Musik-Player öffnen</translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation>Auf &amp;Disc brennen…</translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation>Aus dieser Liste eine Audio-CD erstellen</translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation>&amp;Kurze Aufnahmen finden…</translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation>Aufnahmen finden, die zum Behalten zu kurz sind</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation>An&amp;zeige umschalten</translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation>Pegel der Aufnahme oder Position der Wiedergabe</translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation>&amp;Nächsten Hinweis anzeigen</translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation>In der Anzeige stehen mehrere Hinweise</translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation>Alle Hinweise &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation>&amp;Support-Seite</translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation>Seite der Computerton-&amp;Erweiterung</translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation>&amp;Computerton-Gerät installieren…</translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation>&amp;Über Sonaphex</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>Klingelton</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>Tags bearbeiten</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Brennen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation>Im Player öffnen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Wählen Sie zuerst den Eingang, den Computerton oder beides.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Es ist bereits installiert.</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>Das Gerät bleibt bis zum Ende der Aufnahme, wie es ist.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Die Quellen bleiben bis zum Ende der Aufnahme, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation>Es wird nichts wiedergegeben.</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation>Auf Hinweis &amp;reagieren</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation>Auf Hinweis &amp;reagieren: %1</translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation>Es gibt keinen weiteren Hinweis.</translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation>Dieser Hinweis bietet nichts an.</translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation>Es gibt keinen Hinweis.</translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation>Wählen Sie zuerst eine Aufnahme aus.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Wählen Sie zuerst eine Aufnahme aus. Während der Aufnahme wird nichts wiedergegeben.</translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation>Kommt in einer späteren Version von Sonaphex.</translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation>Diese Liste ist leer.</translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation>Über Sonaphex</translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation>Sonaphex %1</translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Nimmt auf, was der Computer wiedergibt, was ein Mikrofon hört, oder beides.

© 2026 Die Sonaphex-Autoren. Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
    <message>
        <source>&amp;Unsorted</source>
        <translation>&amp;Unsortiert</translation>
    </message>
    <message>
        <source>Sp&amp;lit at Silences…</source>
        <translation>Bei St&amp;ille teilen…</translation>
    </message>
    <message>
        <source>Cut the recording into several at its silences</source>
        <translation>Die Aufnahme an stillen Stellen in mehrere teilen</translation>
    </message>
    <message>
        <source>&amp;Join…</source>
        <translation>&amp;Verbinden…</translation>
    </message>
    <message>
        <source>Make one recording of the selected ones, in the order of the list</source>
        <translation>Die ausgewählten Aufnahmen in der Reihenfolge der Liste zu einer verbinden</translation>
    </message>
    <message>
        <source>Select two recordings or more first.</source>
        <translation>Wählen Sie zuerst mindestens zwei Aufnahmen aus.</translation>
    </message>
    <message>
        <source>&amp;Balance…</source>
        <translation>&amp;Balance…</translation>
    </message>
    <message>
        <source>Mix the input and computer audio of the recording anew</source>
        <translation>Eingang und Computerton der Aufnahme neu mischen</translation>
    </message>
    <message>
        <source>This recording has no tracks. The preferences have a box that keeps those of the next ones.</source>
        <translation>Diese Aufnahme hat keine Spuren. Mit einem Kästchen in den Einstellungen bleiben die der nächsten erhalten.</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation>Aufnahme starten oder stoppen</translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation>Aufnahme pausieren oder fortsetzen</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>In neuer Aufnahme fortfahren</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Eingang</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Das gewählte Eingabegerät aufnehmen</translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation>Das Eingabegerät aufnehmen</translation>
    </message>
    <message>
        <source>Input device</source>
        <translation>Eingabegerät</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>&amp;Computerton</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Aufnehmen, was der Computer wiedergibt</translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation>Computerton aufnehmen</translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation>Verlorene Frames</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothek</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Programs to record</source>
        <translation>Aufzunehmende Programme</translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>Das Computerton-Gerät ist installiert.</translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation>Das Computerton-Gerät ist installiert. Was der Computer wiedergibt, wird ab jetzt aufgenommen.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation>„%1“ wurde nicht hinzugefügt: kürzer als %2 s.</translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation>%1 ausgewählt, zusammen %2</translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation>Kein Titel, Interpret oder Album hier enthält „%1“.</translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation>Die Aufnahme erscheint hier, wenn sie beendet ist.</translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation>Noch nichts da. Klicken Sie auf den roten Knopf, um Ihre erste Aufnahme zu machen.</translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation>Klingeltöne, die Sie aus Ihren Aufnahmen erstellen, erscheinen hier.</translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation>Aufnahmen, die Sie jetzt machen, erscheinen hier.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation>kann nicht von Anfang an gelesen werden</translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation>Audiodateien können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>nicht genug Arbeitsspeicher</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation>keine Audiodatei oder zu stark beschädigt, um gelesen zu werden</translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation>die Datei enthält kein Audio</translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation>das Audioformat wird nicht unterstützt</translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation>kein Decoder für das Audioformat</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>das Audio kann nicht dekodiert werden</translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation>beschädigt bei Frame %1 (%2)</translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation>Kanäle, die nicht gemischt werden können</translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation>keine fertiggestellte Aufnahme von Sonaphex</translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation>der Index ist beschädigt</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation>der AAC-Encoder ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation>der Encoder fehlt: %1</translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation>der Encoder nimmt diese Abtastrate oder Kanalzahl nicht an</translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation>die Abtastrate kann nicht umgewandelt werden</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine reguläre Datei</translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation>dieses Format kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation>zu tief verschachtelt</translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation>eine Box von unmöglicher Größe</translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation>zu viele Boxen</translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation>eine Box, die größer als die umgebende ist</translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation>eine Tabelle, die größer als ihre Box ist</translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation>keine MPEG-4-Datei</translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation>die Datei endet innerhalb ihres Index</translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation>die Datei hat keinen Index</translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation>ein Paket der Aufnahme kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>vor dem Ende abgebrochen</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>%1 kann nicht wiedergegeben werden</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>die Verbindung zum Soundserver ist abgebrochen</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>kein Soundserver antwortet: %1</translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation>der Soundserver hat den Datenstrom verweigert</translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation>die Tags können nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation>die Tags von %1 können nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation>die Tags von %1 können nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation>die Tags können nicht gelesen werden</translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation>das Bild %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation>%1 ist weder ein JPEG- noch ein PNG-Bild</translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation>das Cover von %1 kann nicht nach %2 geschrieben werden: %3</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>ein anderes Programm ändert die Datei gerade</translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation>der Index fasst nicht mehr</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation>der Index ist zu groß</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation>dieser Pfad ist keine reguläre Datei</translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation>die letzte Box hat keine Größe</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation>Neue Aufnahmen</translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation>Alle Aufnahmen</translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation>Klingeltöne</translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation>Neue Klingeltöne</translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation>Alle Klingeltöne</translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation>Sonaphex wartet in der Systemleiste.</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>der Desktop hat es nicht erlaubt</translation>
    </message>
</context>
<context>
    <name>Players</name>
    <message>
        <source>the address is incomplete</source>
        <translation>die Adresse ist unvollständig</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>das Bild ist zu groß</translation>
    </message>
    <message>
        <source>the picture is not a file of this machine</source>
        <translation>das Bild ist keine Datei auf diesem Rechner</translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation>&amp;Aufnahmen:</translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation>Ordner der Aufnahmen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen…</translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation>Den Ordner der Aufnahmen auswählen</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation>Den Ordner der Aufnahmen anzeigen</translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation>&amp;Klingeltöne:</translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation>Ordner der Klingeltöne</translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation>Den Ordner der Klingeltöne auswählen</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>Anz&amp;eigen</translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation>Den Ordner der Klingeltöne anzeigen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation>&amp;Computerton teilen bei Stille von</translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation>Computerton bei Stille teilen</translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation>Länge der Stille in Millisekunden</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation>Aufnahmen &amp;verwerfen unter</translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation>Kurze Aufnahmen verwerfen</translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation>Kürzeste Aufnahme in Sekunden</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation>Vor dem ersten Ton &amp;beginnen um</translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation>Zeit vor dem ersten Ton in Millisekunden</translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation>Eine Aufnahme des Computertons wartet auf den ersten Ton. Sie enthält dann so viel von der Zeit davor.</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Computerton</translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation>Status des Computerton-Geräts</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation>Das Computerton-Gerät installieren</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation>Das Computerton-Gerät entfernen</translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation>Arbeit am Computerton-Gerät läuft</translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation>Problem des Computerton-Geräts</translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation>Globale Tastenkürzel</translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation>&amp;Start oder Stopp:</translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation>Tastenkürzel für Start und Stopp</translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation>&amp;Pause oder weiter:</translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation>Tastenkürzel für Pause und Fortsetzen</translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation>&amp;Neue Aufnahme:</translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation>Tastenkürzel für eine neue Aufnahme</translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation>Stan&amp;dard verwenden</translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation>Die Standard-Tastenkürzel verwenden</translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation>Tasten auf diesem Desktop belegen</translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation>Zuzuweisende Befehle</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation>Ende einer Aufnahme im Hintergrund &amp;melden</translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation>Ende einer Aufnahme im Hintergrund melden</translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation>Eine Benachrichtigung meldet fertige und geteilte Aufnahmen sowie Probleme, solange das Fenster nicht im Vordergrund ist.</translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation>Beim Anmelden verborgen sta&amp;rten</translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation>Beim Anmelden verborgen starten</translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation>Sonaphex wartet nach Ihrer Anmeldung in der Systemleiste.</translation>
    </message>
    <message>
        <source>Ta&amp;ke titles and covers from the media player</source>
        <translation>Tite&amp;l und Cover vom Medien-Player übernehmen</translation>
    </message>
    <message>
        <source>Take titles and covers from the media player</source>
        <translation>Titel und Cover vom Medien-Player übernehmen</translation>
    </message>
    <message>
        <source>A recording of computer audio gets the title, artist, album and cover that the media player names for most of its length. Its file name stays as it is.</source>
        <translation>Eine Aufnahme des Computertons erhält Titel, Interpret, Album und Cover, die der Medien-Player während des größten Teils ihrer Dauer nennt. Ihr Dateiname bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>Split &amp;computer audio when the media player changes the track</source>
        <translation>Computerton beim Stück&amp;wechsel teilen</translation>
    </message>
    <message>
        <source>Split computer audio when the media player changes the track</source>
        <translation>Computerton beim Stückwechsel teilen</translation>
    </message>
    <message>
        <source>For albums without silences between the tracks.</source>
        <translation>Für Alben ohne Stille zwischen den Stücken.</translation>
    </message>
    <message>
        <source>K&amp;eep both tracks beside the mix</source>
        <translation>Beide Sp&amp;uren neben dem Mix behalten</translation>
    </message>
    <message>
        <source>Keep both tracks beside the mix</source>
        <translation>Beide Spuren neben dem Mix behalten</translation>
    </message>
    <message>
        <source>A recording of both sources then also keeps the input and computer audio, each as a file of its own. Balance… mixes them anew. This takes three times the disk space, and more time after the recording.</source>
        <translation>Eine Aufnahme beider Quellen behält dann auch Eingang und Computerton, jeweils als eigene Datei. „Balance…“ mischt sie neu. Das braucht dreimal so viel Speicherplatz und mehr Zeit nach der Aufnahme.</translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation>Die Aufnahme starten oder stoppen</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>Die Aufnahme pausieren oder fortsetzen</translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation>Eine neue Aufnahme beginnen</translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation>Sonaphex kann nicht beim Anmelden gestartet werden.</translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation>Sonaphex wird weiterhin beim Anmelden gestartet.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation>Bei Stille wird nicht geteilt: haken Sie zuerst das Kästchen an.</translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation>Alle Aufnahmen werden behalten: haken Sie zuerst das Kästchen an.</translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation>Das Computerton-Gerät wird installiert…</translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation>Das Computerton-Gerät wird entfernt…</translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>Das Computerton-Gerät ist installiert.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>Das Computerton-Gerät ist nicht installiert.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Es ist bereits installiert.</translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation>Es gibt nichts zu entfernen.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation>Dieser Desktop erlaubt keine globalen Tastenkürzel.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation>Dieser Desktop erlaubt keine globalen Tastenkürzel. Weisen Sie diesen Befehlen in den Tastatureinstellungen des Desktops Tasten zu:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation>Sie können in diesem Ordner keine Dateien speichern. Lese- und Schreibrechte sind erforderlich.</translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation>Das System-Audiogerät kann nicht eingerichtet werden, bitte versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation>Brennfortschritt</translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation>Brennfortschritt</translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation>Brennstatus</translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation>Das Brennen kann erst abgebrochen werden, wenn 4 % geschrieben sind.</translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation>Bricht das Brennen ab; die Disc ist danach unbrauchbar.</translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation>Brennfortschritt:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation>Möchten Sie den Vorgang wirklich beenden?</translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation>Bitte warten Sie einen Moment ...</translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation>Disc wird gebrannt...</translation>
    </message>
</context>
<context>
    <name>ProgramsMenu</name>
    <message>
        <source>Programs to record</source>
        <translation>Aufzunehmende Programme</translation>
    </message>
    <message>
        <source>Programs to record: %1</source>
        <translation>Aufzunehmende Programme: %1</translation>
    </message>
    <message>
        <source>Of computer audio, this is recorded: %1</source>
        <translation>Vom Computerton wird aufgenommen: %1</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Die Quellen bleiben bis zum Ende der Aufnahme, wie sie sind.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>Das Computerton-Gerät ist nicht installiert.</translation>
    </message>
    <message>
        <source>&amp;Everything</source>
        <translation>&amp;Alles</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Nur</translation>
    </message>
    <message>
        <source>Everything &amp;but</source>
        <translation>Alles a&amp;ußer</translation>
    </message>
    <message>
        <source>No program has played yet</source>
        <translation>Noch hat kein Programm etwas gespielt</translation>
    </message>
    <message>
        <source>P&amp;rograms to Record</source>
        <translation>Aufzunehmende &amp;Programme</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option „%1“.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Unbekannte Optionen: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Nach „%1“ fehlt ein Wert.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Unerwarteter Wert nach „%1“.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation>Der Soundserver antwortet noch nicht. Warten auf den Server…</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Nicht warten</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>Das Gerät bleibt bis zum Ende der Aufnahme, wie es ist.</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation>Aufn..</translation>
    </message>
    <message>
        <source>Rec</source>
        <translation>Aufn</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>Warten auf den ersten Ton</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation>Pausiert %1</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Aufnahme wird fertiggestellt</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation>         Audiodatei wird umgewandelt
         Bitte warten ..</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation>         Audiodatei wird umgewandelt
         Bitte warten </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation>der Grund ist unbekannt</translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>Die Aufnahme bleibt erhalten und wird beim nächsten Start verschoben, wenn genug Platz ist. Sie liegt unter</translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation>Die Aufnahme bleibt erhalten unter</translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Sie bleibt erhalten und wird beim nächsten Start verschoben, wenn genug Platz ist. Sie liegt unter</translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Sie bleibt erhalten unter</translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>Das Ausgangsmaterial bleibt erhalten und wird beim nächsten Start verschoben, wenn genug Platz ist. Es liegt unter</translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation>Das Ausgangsmaterial bleibt erhalten unter</translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation>Ein Teil der Aufnahme konnte nicht geschrieben werden (Fehler %1). Was geschrieben wurde, bleibt erhalten.</translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation>%1: %2 konnte nicht in „%3“ gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation>%1 konnte nicht fertiggestellt werden: %2.</translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation>Eine Quelle von %1 konnte nicht gelesen werden (%2) und fehlt darin.</translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation>%1 konnte nicht gemischt werden: %2.</translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation>Der Datenträger ist fast voll: %1 konnte nicht gemischt werden, dafür sind %2 MB nötig; %3 MB sind noch frei.</translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation>%1 konnte nicht kodiert werden: %2.</translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation>Ein Teil von %1 konnte nicht gelesen werden (%2) und fehlt darin.</translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation>%1 konnte nicht mit Tags versehen werden. Der Ton ist vollständig.</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation>etwa 1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation>
            <numerusform>etwa %n Minute</numerusform>
            <numerusform>etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation>Das Programm liest gerade Daten von Ihrem USB-Headset, bitte ziehen Sie es nicht ab. Wenn Sie Ihr USB-Headset abziehen möchten, beenden Sie bitte zuerst dieses Programm, sonst kann es auf Ihrem Computer zu Problemen kommen.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation>%1 kann nicht geöffnet werden: %2. Solange das so bleibt, ist davon nichts zu hören.</translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation>%1 ist nicht mehr da. Es gibt kein anderes Eingabegerät: schließen Sie eines an.</translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation>%1 ist nicht mehr da. %2 dient bis zur Rückkehr als Ersatz.</translation>
    </message>
    <message>
        <source>The input device</source>
        <translation>Das Eingabegerät</translation>
    </message>
    <message>
        <source>the input device</source>
        <translation>das Eingabegerät</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Der Computerton</translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation>der Computerton</translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation>Zum Aufnehmen des System-Audios ist eine Erweiterung erforderlich.</translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation>KorvanAudioDevice ist einfach zu benutzen: Es nimmt System-Audiodaten entgegen, sodass jedes Audioprogramm ohne weitere Hilfsmittel Ton senden und empfangen kann. KorvanAudioDevice ist kostenlos und läuft auf Linux-Computern. Dieser Treiber wird nur von Sonaphex benutzt.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation>Bitte stoppen Sie Ihre Aufnahme.</translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation>Aufnahme stoppen</translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation>Aufnahme pausieren</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Es wird nichts aufgenommen</translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation>Das Eingabegerät liefert nichts. Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation>Der Computerton liefert nichts. Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation>Es gibt kein Eingabegerät. Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation>Das Eingabegerät liefert nichts (%1). Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation>%1 ist aus: Start fehlgeschlagen. Diese Aufnahme läuft ohne diese Quelle.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation>%1 ist aus: Start fehlgeschlagen (%2). Diese Aufnahme läuft ohne diese Quelle.</translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation>%1 wird nicht aufgenommen: %2.</translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation>Die Aufnahme konnte nicht geteilt werden (%1). Sie geht in derselben Datei weiter.</translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation>Der Soundserver</translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation>%1 ist ausgefallen. Das Warten auf den ersten Ton geht nach der Rückkehr weiter.</translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation>%1 ist ausgefallen. Die bisherige Aufnahme bleibt erhalten und geht nach der Rückkehr weiter.</translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation>%1 ist wieder da. Das Warten auf den ersten Ton geht weiter.</translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation>%1 s fehlen: %2 war weg. Die Aufnahme geht weiter.</translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation>%1 s fehlen (%2 Frames): der Computer war zu stark ausgelastet, um sie anzunehmen.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation>Der Datenträger ist voll. Es wird nichts mehr aufgenommen, bis Platz ist; das Aufgenommene bleibt erhalten.</translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation>%1. Es wird nichts mehr aufgenommen; das Aufgenommene bleibt erhalten.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation>Der Computerton ist seit %1 s still: es wird nichts wiedergegeben.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation>Der Computerton ist seit %1 s still: es wird nichts auf %2 wiedergegeben, dem aufgenommenen Ausgang.</translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation>Das Eingabegerät ist stummgeschaltet: seit %1 s wird nur Stille aufgenommen.</translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation>Das Eingabegerät liefert seit %1 s nur Stille. Vielleicht ist es ausgeschaltet oder das falsche: ein anderes kann gewählt werden, wenn die Aufnahme gestoppt ist.</translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation>Der Datenträger ist fast voll: noch Platz für %1 Aufnahme.</translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation>%1 s fehlen: der Datenträger war voll. Die Aufnahme ging in einer anderen Datei weiter.</translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation>Eine frühere Aufnahme konnte nicht fertiggestellt werden. Sie bleibt erhalten unter</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation>
            <numerusform>%n frühere Aufnahme konnte nicht fertiggestellt werden. Sie bleibt erhalten in</numerusform>
            <numerusform>%n frühere Aufnahmen konnten nicht fertiggestellt werden. Sie bleiben erhalten in</numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation>Aufnahme fortsetzen</translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation>die Eingabeeinheit kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation>es gibt keine Eingabeeinheit</translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation>der Ausgang der Einheit kann nicht ausgeschaltet werden</translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation>das Gerät kann nicht benutzt werden</translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation>das Gerät nimmt keinen Callback an</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation>das Format des Geräts kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation>das Format des Geräts kann nicht aufgenommen werden</translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation>die Puffergröße des Geräts kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation>die Einheit kann nicht initialisiert werden</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>nicht genug Arbeitsspeicher</translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation>das Gerät kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>Less than a minute left on this disk</source>
        <translation>Platz auf diesem Datenträger: unter 1 Minute</translation>
    </message>
    <message>
        <source>About %1 min left on this disk</source>
        <translation>Platz auf diesem Datenträger: etwa %1 min</translation>
    </message>
    <message>
        <source>About %1 h %2 min left on this disk</source>
        <translation>Platz auf diesem Datenträger: etwa %1 h %2 min</translation>
    </message>
    <message>
        <source>%1 is complete, but its tracks could not be kept: %2.</source>
        <translation>%1 ist vollständig, aber die Spuren konnten nicht behalten werden: %2.</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>der Datenträger ist fast voll</translation>
    </message>
    <message>
        <source>%1 could not be saved beside its recording: %2.</source>
        <translation>%1 konnte nicht neben der Aufnahme gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>An interrupted recording is complete now:</source>
        <comment>a path follows</comment>
        <translation>Eine unterbrochene Aufnahme ist jetzt vollständig:</translation>
    </message>
    <message>
        <source>the recorded sound of a source is missing</source>
        <translation>der aufgenommene Ton einer Quelle fehlt</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Wählen Sie zuerst den Eingang, den Computerton oder beides.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Wählen Sie zuerst eine Aufnahme aus. Während der Aufnahme wird nichts wiedergegeben.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Die Quellen bleiben bis zum Ende der Aufnahme, wie sie sind.</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Das gewählte Eingabegerät aufnehmen</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Aufnehmen, was der Computer wiedergibt</translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation>%1 s verloren</translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation>Keine Frames verloren</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Es wird nichts aufgenommen</translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation>Kein Soundserver</translation>
    </message>
    <message>
        <source>No input device</source>
        <translation>Kein Eingabegerät</translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation>Warten auf den ersten Ton des Computers</translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation>Kein Soundserver: ein Testton wird aufgenommen</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation>Es wurde kein Eingabegerät gefunden.</translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation>Der Eingang wird nicht aufgenommen: haken Sie zuerst das Kästchen an.</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>In neuer Aufnahme fortfahren</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>%1 – Sonaphex</source>
        <translation>%1 – Sonaphex</translation>
    </message>
</context>
<context>
    <name>RecordPrograms</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Nur %1</translation>
    </message>
    <message>
        <source>Everything but %1</source>
        <translation>Alles außer %1</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Warten auf %1</translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation>Eine Aufnahme läuft.</translation>
    </message>
    <message>
        <source>%1 is off: %2.</source>
        <translation>%1 ist aus: %2.</translation>
    </message>
    <message>
        <source>Computer audio (%1) has been silent for %2 s: nothing plays.</source>
        <translation>Der Computerton (%1) ist seit %2 s still: Nichts spielt.</translation>
    </message>
    <message>
        <source>another recording of computer audio runs with other programs</source>
        <translation>eine andere Aufnahme des Computertons läuft mit anderen Programmen</translation>
    </message>
    <message>
        <source>the computer-audio device cannot choose programs; remove it and install it again</source>
        <translation>das Computerton-Gerät kann keine Programme auswählen; entfernen und neu installieren</translation>
    </message>
</context>
<context>
    <name>RecordingJoin</name>
    <message>
        <source>The recordings were not joined.</source>
        <translation>Die Aufnahmen wurden nicht verbunden.</translation>
    </message>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>Die Datei ist nicht mehr vorhanden: %1</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Dieser Pfad existiert bereits, bitte ändern Sie den Pfad oder den Namen.</translation>
    </message>
    <message numerus="yes">
        <source>Joining %n recordings…</source>
        <translation>
            <numerusform>%n Aufnahme wird verbunden…</numerusform>
            <numerusform>%n Aufnahmen werden verbunden…</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.</source>
        <translation>„%1“ wurde erstellt. Die Aufnahmen sind nicht Teile ein und derselben Aufnahme, daher wurde der Ton neu kodiert.</translation>
    </message>
    <message>
        <source>“%1” was made. The sound was copied without encoding it again.</source>
        <translation>„%1“ wurde erstellt. Der Ton wurde ohne erneutes Kodieren kopiert.</translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation>„%1“ wurde nicht behalten: zu kurz.</translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation>Aufnahme nicht behalten</translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation>Zur Aufnahme</translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation>Aufnahme geteilt; die nächste läuft</translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation>Aufnahme fertig</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation>
            <numerusform>%n Aufnahme fertig</numerusform>
            <numerusform>%n Aufnahmen fertig</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation>der Titel ist leer</translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation>ein Dateiname kann kein „/“ enthalten</translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation>der Titel enthält ein Zeichen, das kein Dateiname enthalten kann</translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation>der Titel ist länger, als ein Dateiname sein kann</translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation>im selben Ordner gibt es bereits eine Datei namens „%1“</translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation>Die Datei behält ihren Namen „%1“: %2.</translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation>es ist kein Ordner für Klingeltöne bekannt</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation>Klingelton</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation>Wellenform der Aufnahme</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Vorhören</translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation>Die Auswahl immer wieder abspielen</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>V&amp;on</translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation>Anfang der Auswahl</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Bis</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Ende der Auswahl</translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation>Länge der Auswahl</translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation>&amp;Einblenden</translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation>Sekunden der Einblendung</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation>Sekunden der Ausblendung</translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation>Die Kästchen gelten für das Anhören. Der Klingelton wird über diese Zeiten ein- und ausgeblendet; unter einer Sekunde entfällt die Blende.</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation>Danach im Pla&amp;yer öffnen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation>&amp;Klingelton erstellen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation>Klingelton aus „%1“</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation>Diese Aufnahme kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation>Diese Aufnahme kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation>Wählen Sie zuerst einen Teil der Aufnahme aus.</translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation>Diese Aufnahme kann nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation>Diese Aufnahme kann nicht wiedergegeben werden: %1</translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation>Der Klingelton konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation>Die Aufnahme ist beschädigt. Der Klingelton ist still, wo sie nicht gelesen werden konnte.</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>Für „%1“ konnte kein Player geöffnet werden.</translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation>Der Klingelton ist in der Bibliothek.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Titel, Interpreten und Alben durchsuchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>SplitEditView</name>
    <message>
        <source>Cut %1 of %2, %3</source>
        <translation>Schnitt %1 von %2, %3</translation>
    </message>
    <message>
        <source>Cuts of the recording</source>
        <translation>Schnitte der Aufnahme</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message>
        <source>Current cut</source>
        <translation>Aktueller Schnitt</translation>
    </message>
</context>
<context>
    <name>SplitPartsModel</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
</context>
<context>
    <name>SplitWnd</name>
    <message>
        <source>Split at Silences</source>
        <translation>Bei Stille teilen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Wiedergabezeit</translation>
    </message>
    <message>
        <source>Visible part of the recording</source>
        <translation>Sichtbarer Teil der Aufnahme</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Listen to Cut</source>
        <translation>Schnitt an&amp;hören</translation>
    </message>
    <message>
        <source>Play from two seconds before the cut to two seconds behind it</source>
        <translation>Von zwei Sekunden vor dem Schnitt bis zwei Sekunden danach abspielen</translation>
    </message>
    <message>
        <source>&amp;Add Cut</source>
        <translation>Schnitt &amp;setzen</translation>
    </message>
    <message>
        <source>Cut at the play position</source>
        <translation>An der Wiedergabeposition schneiden</translation>
    </message>
    <message>
        <source>Re&amp;move Cut</source>
        <translation>Schnitt &amp;entfernen</translation>
    </message>
    <message>
        <source>Take the current cut away</source>
        <translation>Den aktuellen Schnitt entfernen</translation>
    </message>
    <message>
        <source>Rese&amp;t Cuts</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Take back the cuts that you added, moved and removed</source>
        <translation>Von Ihnen gesetzte, verschobene und entfernte Schnitte rückgängig machen</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>&amp;Pegel</translation>
    </message>
    <message>
        <source>Level below which it is silent, in decibels</source>
        <translation>Pegel, unter dem der Ton als still gilt, in Dezibel</translation>
    </message>
    <message>
        <source>Value of Level</source>
        <translation>Wert des Pegels</translation>
    </message>
    <message>
        <source>Len&amp;gth</source>
        <translation>&amp;Länge</translation>
    </message>
    <message>
        <source>Length of the shortest silence, in tenths of a second</source>
        <translation>Länge der kürzesten Stille, in Zehntelsekunden</translation>
    </message>
    <message>
        <source>Value of Length</source>
        <translation>Wert der Länge</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>&amp;Delete the recording when its parts are written</source>
        <translation>Die &amp;Aufnahme löschen, wenn ihre Teile geschrieben sind</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Split</source>
        <translation>&amp;Teilen</translation>
    </message>
</context>
<context>
    <name>SplitWndController</name>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Searching for silences… %1 %</source>
        <translation>Suche nach Stille… %1 %</translation>
    </message>
    <message>
        <source>No silence found at this level. Choose a higher level, or add cuts yourself.</source>
        <translation>Keine Stille bei diesem Pegel gefunden. Wählen Sie einen höheren Pegel oder setzen Sie selbst Schnitte.</translation>
    </message>
    <message>
        <source>No silence is long enough. The longest silence found: %1 s.</source>
        <translation>Keine Stille ist lang genug. Längste gefundene Stille: %1 s.</translation>
    </message>
    <message>
        <source>One cut. The longest silence found: %1 s.</source>
        <translation>Ein Schnitt. Längste gefundene Stille: %1 s.</translation>
    </message>
    <message numerus="yes">
        <source>%n cuts. The longest silence found: %1 s.</source>
        <translation>
            <numerusform>%n Schnitt. Längste gefundene Stille: %1 s.</numerusform>
            <numerusform>%n Schnitte. Längste gefundene Stille: %1 s.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Writing the parts…</source>
        <translation>Die Teile werden geschrieben…</translation>
    </message>
    <message>
        <source>The recording was not split.</source>
        <translation>Die Aufnahme wurde nicht geteilt.</translation>
    </message>
</context>
<context>
    <name>SpokenField</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StatusBarItem</name>
    <message>
        <source>Cut to Another Recording</source>
        <translation>In neuer Aufnahme fortfahren</translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation>Sonaphex anzeigen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Sonaphex: %1</source>
        <translation>Sonaphex: %1</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation>Nur angehakte Dateien werden gebrannt</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Brennen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
