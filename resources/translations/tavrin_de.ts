<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AlertCard</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Sitzung beenden…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>AlertNotifier</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Free RAM…</source>
        <translation>RAM freigeben…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Sitzung beenden…</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 beenden</translation>
    </message>
    <message>
        <source>Cleaning is done</source>
        <translation>Bereinigung abgeschlossen</translation>
    </message>
</context>
<context>
    <name>AlertStripView</name>
    <message>
        <source>System looks healthy.</source>
        <translation>Das System ist in Ordnung.</translation>
    </message>
</context>
<context>
    <name>AlertsTab</name>
    <message>
        <source>Alerts</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Low RAM warning</source>
        <translation>Warnung bei wenig RAM</translation>
    </message>
    <message>
        <source>Free RAM threshold</source>
        <translation>Schwelle für freien RAM</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>Notify when RAM is getting tight</source>
        <translation>Benachrichtigen, wenn der RAM knapp wird</translation>
    </message>
    <message>
        <source>Memory pressure</source>
        <translation>Speicherdruck</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Programme warten auf Speicher</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>Vorhersage</translation>
    </message>
    <message>
        <source>Memory full within 30 minutes</source>
        <translation>Speicher innerhalb von 30 Minuten voll</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Speicher erschöpft</translation>
    </message>
    <message>
        <source>What was ended because memory ran out</source>
        <translation>Was beendet wurde, weil der Speicher voll war</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>CPU saturation</source>
        <translation>CPU-Auslastung</translation>
    </message>
    <message>
        <source>CPU threshold</source>
        <translation>CPU-Schwelle</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Thermal pressure warning</source>
        <translation>Warnung bei Überhitzung</translation>
    </message>
    <message>
        <source>Idle agents</source>
        <translation>Untätige Agenten</translation>
    </message>
    <message>
        <source>Flag idle Claude / agentic processes</source>
        <translation>Untätige Claude- und Agentenprozesse melden</translation>
    </message>
    <message>
        <source>Min idle</source>
        <translation>Mindestens untätig</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM</source>
        <translation>Mindest-RAM</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Browser RAM dominance</source>
        <translation>Browser belegen viel RAM</translation>
    </message>
    <message>
        <source>Of total RAM</source>
        <translation>Vom gesamten RAM</translation>
    </message>
    <message>
        <source>Caches</source>
        <translation>Caches</translation>
    </message>
    <message>
        <source>Caches reclaimable</source>
        <translation>Bereinigbare Caches</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwelle</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sitzungen</translation>
    </message>
    <message>
        <source>Large session</source>
        <translation>Große Sitzung</translation>
    </message>
    <message>
        <source>Session holds more than</source>
        <translation>Sitzung belegt mehr als</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>Benachrichtigen</translation>
    </message>
    <message>
        <source>Notify: %1</source>
        <translation>Benachrichtigen: %1</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Notify of heavy swap usage</source>
        <translation>Bei starker Auslagerung benachrichtigen</translation>
    </message>
    <message>
        <source>Notify of a finished long clean</source>
        <translation>Nach langer Bereinigung benachrichtigen</translation>
    </message>
    <message>
        <source>Quiet time</source>
        <translation>Ruhezeit</translation>
    </message>
    <message>
        <source>Quiet from</source>
        <translation>Ruhe von</translation>
    </message>
    <message>
        <source>Quiet until</source>
        <translation>Ruhe bis</translation>
    </message>
    <message>
        <source>This desktop has no service that shows notifications.</source>
        <translation>Diese Arbeitsumgebung hat keinen Dienst, der Benachrichtigungen anzeigt.</translation>
    </message>
    <message>
        <source>%1%</source>
        <comment>a share</comment>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>AppMenu</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>AutoOptimizeCard</name>
    <message>
        <source>Auto-Optimize</source>
        <translation>Automatisch optimieren</translation>
    </message>
    <message>
        <source>Every 30 min: kill orphan MCPs + send memory pressure</source>
        <translation>Alle 30 min: verwaiste MCP-Server beenden und Speicherdruck senden</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Only safe actions run on the timer. Quitting visible apps stays manual on purpose.</source>
        <translation>Nach Zeitplan läuft nur, was nichts gefährdet. Sichtbare Anwendungen beenden Sie absichtlich selbst.</translation>
    </message>
    <message>
        <source>Running in background</source>
        <translation>Läuft im Hintergrund</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>CacheCard</name>
    <message>
        <source>Not scanned yet</source>
        <translation>Noch nicht gemessen</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <translation>Gemessen: %1</translation>
    </message>
    <message>
        <source>Not in Clean All.</source>
        <translation>Nicht in „Alles bereinigen“ enthalten.</translation>
    </message>
    <message>
        <source>not in Clean All</source>
        <translation>nicht in „Alles bereinigen“</translation>
    </message>
</context>
<context>
    <name>CacheDetailDrawer</name>
    <message>
        <source>%1 reclaimable</source>
        <translation>%1 bereinigbar</translation>
    </message>
    <message>
        <source>Will run: %1</source>
        <translation>Führt aus: %1</translation>
    </message>
    <message>
        <source>Breakdown</source>
        <translation>Aufschlüsselung</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Rescan to see what it consists of.</source>
        <translation>Messen Sie neu, um zu sehen, woraus es besteht.</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 bereinigen</translation>
    </message>
</context>
<context>
    <name>CacheScanner</name>
    <message>
        <source>%1 cannot be cleaned: %2.</source>
        <translation>%1 kann nicht bereinigt werden: %2.</translation>
    </message>
    <message>
        <source>The tool calls %1 of it reclaimable.</source>
        <translation>Laut Werkzeug sind %1 davon freigebbar.</translation>
    </message>
</context>
<context>
    <name>CachesCard</name>
    <message>
        <source>Caches</source>
        <translation>Caches</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Alles bereinigen</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Bereinigung anhalten</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Wird angehalten: %1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>%1 wird bereinigt (%2 von %3)</translation>
    </message>
    <message>
        <source>%1 reclaimable across %2 targets</source>
        <translation>%1 bereinigbar, Ziele: %2</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>%1 wird gemessen (%2 von %3)</translation>
    </message>
    <message>
        <source>Nothing is measured yet. “Rescan” in the section Cleanup does that.</source>
        <translation>Noch ist nichts gemessen. Das macht „Neu messen“ im Abschnitt Bereinigung.</translation>
    </message>
</context>
<context>
    <name>CandidateRow</name>
    <message>
        <source>PID %1 • %2</source>
        <translation>PID %1 • %2</translation>
    </message>
    <message>
        <source>frees ≤ %1</source>
        <translation>gibt ≤ %1 frei</translation>
    </message>
    <message>
        <source>frees ≈ %1</source>
        <translation>gibt ≈ %1 frei</translation>
    </message>
    <message>
        <source>%1, %2, %3, idle %4, %5</source>
        <translation>%1, %2, %3, untätig seit %4, %5</translation>
    </message>
</context>
<context>
    <name>Cleaner</name>
    <message>
        <source>stopped</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>there is no trash</source>
        <translation>es gibt keinen Papierkorb</translation>
    </message>
    <message>
        <source>its name is no text</source>
        <translation>der Name ist kein lesbarer Text</translation>
    </message>
    <message>
        <source>%1 was not moved to the trash: %2</source>
        <translation>%1 wurde nicht in den Papierkorb verschoben: %2</translation>
    </message>
    <message>
        <source>only old files can be moved</source>
        <translation>nur alte Dateien können verschoben werden</translation>
    </message>
    <message>
        <source>it could not be listed</source>
        <translation>es konnte nicht aufgelistet werden</translation>
    </message>
</context>
<context>
    <name>CleanupChoice</name>
    <message>
        <source>No volumes go</source>
        <translation>Es werden keine Volumes gelöscht</translation>
    </message>
    <message>
        <source>Volumes that go, with all that is in them: %1</source>
        <translation>Volumes, die mit ihrem gesamten Inhalt gelöscht werden: %1</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Delete %1?</source>
        <translation>%1 löschen?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Clean all reclaimable caches?</source>
        <translation>Alle bereinigbaren Caches bereinigen?</translation>
    </message>
    <message>
        <source>Clean %1</source>
        <translation>%1 bereinigen</translation>
    </message>
</context>
<context>
    <name>CleanupPreview</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Tick all that is shown</source>
        <translation>Alles Angezeigte auswählen</translation>
    </message>
    <message>
        <source>Leave out all that is shown</source>
        <translation>Alles Angezeigte auslassen</translation>
    </message>
    <message>
        <source>Could not look into %1: %2</source>
        <translation>%1 konnte nicht durchsucht werden: %2</translation>
    </message>
    <message>
        <source>%1 will come back</source>
        <translation>%1 werden frei</translation>
    </message>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • %n ausgelassen</numerusform>
            <numerusform> • %n ausgelassen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CleanupPreviewModel</name>
    <message>
        <source>changed %1</source>
        <translation>geändert: %1</translation>
    </message>
    <message>
        <source>in use</source>
        <translation>in Gebrauch</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>CleanupPreviewView</name>
    <message>
        <source>What goes</source>
        <translation>Was gelöscht wird</translation>
    </message>
    <message>
        <source>Leave out</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Einbeziehen</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>%1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Nothing here has the text of the search. What is ticked stays so.</source>
        <translation>Nichts hier enthält den Suchtext. Was angekreuzt ist, bleibt es.</translation>
    </message>
</context>
<context>
    <name>CleanupTab</name>
    <message>
        <source>Cleanup</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Questions</source>
        <translation>Rückfragen</translation>
    </message>
    <message>
        <source>Ask before cleaning everything</source>
        <translation>Vor dem Bereinigen von allem nachfragen</translation>
    </message>
    <message>
        <source>When off, “Clean All” in Optimize starts at once.</source>
        <translation>Wenn aus, beginnt „Alles bereinigen“ unter „Optimieren“ sofort.</translation>
    </message>
    <message>
        <source>Never clean</source>
        <translation>Nie bereinigen</translation>
    </message>
    <message>
        <source>Nothing is excluded.</source>
        <translation>Nichts ist ausgeschlossen.</translation>
    </message>
    <message>
        <source>Path or pattern, such as *.gguf</source>
        <translation>Pfad oder Muster, z. B. *.gguf</translation>
    </message>
    <message>
        <source>Neither counted nor removed. A path keeps all below it.</source>
        <translation>Wird weder gezählt noch entfernt. Ein Pfad behält auch alles darunter.</translation>
    </message>
    <message>
        <source>Project folders</source>
        <translation>Projektordner</translation>
    </message>
    <message>
        <source>Your home folder</source>
        <translation>Ihr persönlicher Ordner</translation>
    </message>
    <message>
        <source>Where “Project leftovers” looks for projects. Hidden folders and other disks are left out.</source>
        <translation>Hier sucht „Projektreste“ nach Projekten. Versteckte Ordner und andere Datenträger werden ausgelassen.</translation>
    </message>
</context>
<context>
    <name>CleanupTexts</name>
    <message>
        <source>“%1”</source>
        <comment>a name</comment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n Volume, %1</numerusform>
            <numerusform>%n Volumes, %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Gone for good: %1</source>
        <translation>Endgültig gelöscht: %1</translation>
    </message>
    <message>
        <source>Gone for good</source>
        <translation>Endgültig gelöscht</translation>
    </message>
    <message>
        <source>Runs %1</source>
        <translation>Führt %1 aus</translation>
    </message>
    <message>
        <source>These are files of yours, no caches. They will be gone for good.</source>
        <translation>Das sind Ihre eigenen Dateien, keine Caches. Sie werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>These files of yours will be gone for good: %1.</source>
        <translation>Diese eigenen Dateien werden endgültig gelöscht: %1.</translation>
    </message>
    <message>
        <source>Gone for good, with all that is in them: %1.</source>
        <translation>Endgültig gelöscht, mit gesamtem Inhalt: %1.</translation>
    </message>
    <message>
        <source>Stopped containers go too. Images and build caches are fetched or built again as needed.</source>
        <translation>Angehaltene Container werden ebenfalls gelöscht. Images und Build-Caches werden bei Bedarf neu geladen oder erstellt.</translation>
    </message>
    <message>
        <source>Deleting cache files. Apps will rebuild caches as needed.</source>
        <translation>Cachedateien werden gelöscht. Anwendungen legen Caches bei Bedarf neu an.</translation>
    </message>
    <message>
        <source>What goes: %1.</source>
        <translation>Gelöscht wird: %1.</translation>
    </message>
    <message>
        <source>No volumes go.</source>
        <translation>Es werden keine Volumes gelöscht.</translation>
    </message>
    <message>
        <source>Runs every cleanup with a size estimate above 0.</source>
        <translation>Führt jede Bereinigung aus, deren geschätzte Größe über 0 liegt.</translation>
    </message>
    <message>
        <source>Apps will rebuild caches as needed.</source>
        <translation>Anwendungen legen Caches bei Bedarf neu an.</translation>
    </message>
    <message>
        <source>Not so with what is yours. It will be gone for good: %1.</source>
        <translation>Für Ihre eigenen Daten gilt das nicht. Sie werden endgültig gelöscht: %1.</translation>
    </message>
    <message>
        <source>Some of them overlap; the total counts what they share once.</source>
        <translation>Einige überschneiden sich; die Summe zählt Gemeinsames nur einmal.</translation>
    </message>
    <message>
        <source>Stopped: cleaned %1 of %2 targets, freed ~%3</source>
        <translation>Angehalten: %1 von %2 bereinigt, ~%3 frei</translation>
    </message>
    <message>
        <source>Cleaned %1 targets, freed ~%2</source>
        <translation>Bereinigte Ziele: %1, ~%2 freigegeben</translation>
    </message>
    <message>
        <source>%1 came back on the disk</source>
        <translation>%1 auf dem Datenträger frei geworden</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Nicht abgeschlossen: %1</translation>
    </message>
    <message>
        <source>It is unknown which volumes go, with all that is in them.</source>
        <translation>Es ist unbekannt, welche Volumes mit allem darin verschwinden.</translation>
    </message>
    <message>
        <source>unknown volumes</source>
        <translation>unbekannte Volumes</translation>
    </message>
</context>
<context>
    <name>CleanupView</name>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>Neu messen</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Alles bereinigen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Also what this computer has nothing of</source>
        <translation>Auch, was es auf diesem Computer nicht gibt</translation>
    </message>
    <message>
        <source>Cleanup targets</source>
        <translation>Bereinigungsziele</translation>
    </message>
    <message>
        <source>Stop cleaning</source>
        <translation>Bereinigung anhalten</translation>
    </message>
    <message>
        <source>Reclaimable: %1</source>
        <translation>Bereinigbar: %1</translation>
    </message>
    <message>
        <source>Build folders of your projects, which their tools make again.</source>
        <translation>Build-Ordner Ihrer Projekte, die deren Werkzeuge neu anlegen.</translation>
    </message>
    <message>
        <source>Stopping %1 (%2 of %3)</source>
        <translation>Wird angehalten: %1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Cleaning %1 (%2 of %3)</source>
        <translation>%1 wird bereinigt (%2 von %3)</translation>
    </message>
    <message>
        <source>Measuring %1 (%2 of %3)</source>
        <translation>%1 wird gemessen (%2 von %3)</translation>
    </message>
    <message>
        <source>nothing is measured yet: “Rescan” does that</source>
        <translation>noch nichts gemessen: das macht „Neu messen“</translation>
    </message>
    <message>
        <source>Stop measuring</source>
        <translation>Messung anhalten</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU-%</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigen</translation>
    </message>
    <message>
        <source>Memory that no other process shares</source>
        <translation>Speicher, den kein anderer Prozess mitnutzt</translation>
    </message>
    <message>
        <source>Swap</source>
        <translation>Swap</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Untätig</translation>
    </message>
    <message>
        <source>Procs</source>
        <translation>Proz.</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Freed</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Idle≥</source>
        <translation>Untätig≥</translation>
    </message>
    <message>
        <source>RAM≥</source>
        <translation>RAM≥</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Erzw.</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Disk read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>Read from disks a second, of your own processes</source>
        <translation>Von Datenträgern gelesen je Sekunde, nur eigene Prozesse</translation>
    </message>
    <message>
        <source>Disk write</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Written to disks a second, of your own processes</source>
        <translation>Auf Datenträger geschrieben je Sekunde, nur eigene Prozesse</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Gestartet</translation>
    </message>
    <message>
        <source>Parent</source>
        <translation>Elternprozess</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CpuPage</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>All cores</source>
        <translation>Alle Kerne</translation>
    </message>
    <message>
        <source>Core %1</source>
        <translation>Kern %1</translation>
    </message>
</context>
<context>
    <name>DetailPage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>since %1, while this page is open</source>
        <translation>seit %1, solange diese Seite offen ist</translation>
    </message>
</context>
<context>
    <name>DiskPage</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 frei von %2</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>%1 read</source>
        <translation>%1 gelesen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>No figures of reading and writing</source>
        <translation>Keine Werte zum Lesen und Schreiben</translation>
    </message>
    <message>
        <source>This computer shows programs no disk of its own, as many containers. What single processes read and write is in columns of the Processes section.</source>
        <translation>Dieser Computer zeigt Programmen keinen eigenen Datenträger, wie viele Container. Was einzelne Prozesse lesen und schreiben, steht in Spalten des Abschnitts Prozesse.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Read and written</source>
        <translation>Gelesen und geschrieben</translation>
    </message>
    <message>
        <source>No volume of a disk is mounted here. The tile shows the space of the root folder.</source>
        <translation>Hier ist kein Volume eines Datenträgers eingehängt. Die Kachel zeigt den Platz des Wurzelordners.</translation>
    </message>
    <message>
        <source>A disk does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Ein Datenträger antwortet nicht. Er wird wieder gefragt, sobald er es tut, solange diese Seite offen ist.</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>EndDialog</name>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 Darunter läuft %n Prozess.</numerusform>
            <numerusform>%1 Darunter laufen %n Prozesse.</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill %1?</source>
        <translation>Beenden von %1 erzwingen?</translation>
    </message>
    <message>
        <source>Quit %1?</source>
        <translation>%1 beenden?</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>Beenden von %n Prozess erzwingen?</numerusform>
            <numerusform>Beenden von %n Prozessen erzwingen?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>%n Prozess beenden?</numerusform>
            <numerusform>%n Prozesse beenden?</numerusform>
        </translation>
    </message>
    <message>
        <source>They hold %1. They end at once, and what is not saved is lost.</source>
        <translation>Sie belegen %1. Sie enden sofort, und nicht Gespeichertes geht verloren.</translation>
    </message>
    <message>
        <source>They hold %1. They are asked to end, and may lose what is not saved.</source>
        <translation>Sie belegen %1. Sie werden zum Beenden aufgefordert und können nicht Gespeichertes verlieren.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It ends at once, and what is not saved is lost.</source>
        <translation>PID %1 belegt %2. Der Prozess endet sofort, und nicht Gespeichertes geht verloren.</translation>
    </message>
    <message>
        <source>PID %1 holds %2. It is asked to end, and may lose what is not saved.</source>
        <translation>PID %1 belegt %2. Der Prozess wird zum Beenden aufgefordert und kann nicht Gespeichertes verlieren.</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Beenden erzwungen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Beenden von %1 erzwingen</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 beenden</translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;EB</translation>
    </message>
    <message>
        <source>%1s</source>
        <comment>seconds</comment>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1m</source>
        <comment>minutes</comment>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1h</source>
        <comment>hours</comment>
        <translation>%1&#xa0;h</translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>vor %n Jahr</numerusform>
            <numerusform>vor %n Jahren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>vor %n Monat</numerusform>
            <numerusform>vor %n Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>vor %n Woche</numerusform>
            <numerusform>vor %n Wochen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>vor %n Tag</numerusform>
            <numerusform>vor %n Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>vor %n Stunde</numerusform>
            <numerusform>vor %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>vor %n Minute</numerusform>
            <numerusform>vor %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) ago</source>
        <translation>
            <numerusform>vor %n Sekunde</numerusform>
            <numerusform>vor %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence</comment>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>FreeRAMResultView</name>
    <message>
        <source>• memory_pressure nudged</source>
        <translation>• memory_pressure angestoßen</translation>
    </message>
    <message>
        <source>Freed ~%1</source>
        <translation>~%1 freigegeben</translation>
    </message>
    <message>
        <source>• stopped</source>
        <translation>• angehalten</translation>
    </message>
</context>
<context>
    <name>FreeRAMSheet</name>
    <message>
        <source>Min idle: %1 min</source>
        <translation>Mindestens untätig: %1&#xa0;min</translation>
    </message>
    <message>
        <source>Min RAM: %1 MB</source>
        <translation>Mindest-RAM: %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Other programs too</source>
        <translation>Auch andere Programme</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM freigeben</translation>
    </message>
    <message>
        <source>Tick the processes you want to terminate. SIGTERM is sent first; anything still running after 2 s gets SIGKILL. %1 is then nudged with a memory-pressure hint to compress inactive pages.</source>
        <translation>Wählen Sie die Prozesse aus, die beendet werden sollen. Zuerst wird SIGTERM gesendet; was nach 2 s noch läuft, erhält SIGKILL. Danach wird %1 durch Speicherdruck veranlasst, inaktive Seiten zu komprimieren.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Lists programs of no known group under a gigabyte as well</source>
        <translation>Zeigt auch Programme ohne bekannte Gruppe unter einem Gigabyte</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>No idle hogs above your thresholds</source>
        <translation>Keine untätigen Speicherfresser über Ihren Schwellen</translation>
    </message>
    <message>
        <source>Lower the Min idle slider to see lightly-used processes.</source>
        <translation>Schieben Sie „Mindestens untätig“ nach links, um wenig genutzte Prozesse zu sehen.</translation>
    </message>
    <message>
        <source>%1 selected • %2 targeted</source>
        <translation>%1 ausgewählt • %2 angestrebt</translation>
    </message>
    <message>
        <source>Killing…</source>
        <translation>Wird beendet…</translation>
    </message>
    <message>
        <source>Kill %1 and free RAM</source>
        <translation>%1 beenden und RAM freigeben</translation>
    </message>
    <message>
        <source>Send memory pressure only</source>
        <translation>Nur Speicherdruck senden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Kills nothing more; what still runs is left alone</source>
        <translation>Beendet nichts weiter zwangsweise; was noch läuft, bleibt unberührt</translation>
    </message>
</context>
<context>
    <name>FreedesktopLoginItem</name>
    <message>
        <source>The program&apos;s own file cannot be found.</source>
        <translation>Die Programmdatei selbst wurde nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>FreedesktopPlaces</name>
    <message>
        <source>%1 is left alone: a whole file system is mounted there.</source>
        <translation>%1 bleibt unberührt: Dort ist ein ganzes Dateisystem eingehängt.</translation>
    </message>
    <message>
        <source>%1 is left alone: it is a link.</source>
        <translation>%1 bleibt unberührt: Es ist eine Verknüpfung.</translation>
    </message>
    <message>
        <source>%1 is left alone: it holds more than that, in %2.</source>
        <translation>%1 bleibt unberührt: Darin liegt noch mehr, in %2.</translation>
    </message>
    <message>
        <source>%1 is left alone: all programs share it.</source>
        <translation>%1 bleibt unberührt: Alle Programme teilen es sich.</translation>
    </message>
    <message>
        <source>%1 is left alone: the folder of caches must have nothing to do with %2.</source>
        <translation>%1 bleibt unberührt: Der Cache-Ordner darf nichts mit %2 zu tun haben.</translation>
    </message>
</context>
<context>
    <name>FreedesktopTargets</name>
    <message>
        <source>Gradle fetches its packages and its own versions again.</source>
        <translation>Gradle lädt seine Pakete und eigenen Versionen neu.</translation>
    </message>
    <message>
        <source>Old logs of Gradle&apos;s background processes. Gradle writes new ones.</source>
        <translation>Alte Protokolle der Hintergrundprozesse von Gradle. Gradle schreibt neue.</translation>
    </message>
    <message>
        <source>Maven fetches packages again. Those that were only installed here must be built again.</source>
        <translation>Maven lädt Pakete neu. Nur hier installierte müssen neu gebaut werden.</translation>
    </message>
    <message>
        <source>Both fetch their packages again.</source>
        <translation>Beide laden ihre Pakete neu.</translation>
    </message>
    <message>
        <source>Cargo unpacks sources again, and fetches repositories again.</source>
        <translation>Cargo entpackt Quellen erneut und lädt Repositorys neu.</translation>
    </message>
    <message>
        <source>Go compiles packages again.</source>
        <translation>Go kompiliert Pakete neu.</translation>
    </message>
    <message>
        <source>Toolchains that are not the default. A project may still name one: rustup fetches it again, but not one of your own.</source>
        <translation>Toolchains, die nicht Standard sind. Ein Projekt kann noch eine davon nennen: rustup lädt sie neu, eine selbst gebaute aber nicht.</translation>
    </message>
    <message>
        <source>Yarn and Corepack fetch it again.</source>
        <translation>Yarn und Corepack laden es neu.</translation>
    </message>
    <message>
        <source>Conda fetches packages again. Environments keep theirs, unless they are set to link to this folder.</source>
        <translation>Conda lädt Pakete neu. Umgebungen behalten ihre, wenn sie nicht in diesen Ordner verknüpfen.</translation>
    </message>
    <message>
        <source>Poetry fetches its packages again. Environments stay.</source>
        <translation>Poetry lädt seine Pakete neu. Umgebungen bleiben.</translation>
    </message>
    <message>
        <source>pre-commit installs its hooks again.</source>
        <translation>pre-commit installiert seine Hooks neu.</translation>
    </message>
    <message>
        <source>Compiled objects. The next builds take longer and fill it again.</source>
        <translation>Kompilierte Objekte. Die nächsten Builds dauern länger und füllen ihn wieder.</translation>
    </message>
    <message>
        <source>Files that Bazel has fetched. It fetches them again.</source>
        <translation>Dateien, die Bazel geladen hat. Bazel lädt sie neu.</translation>
    </message>
    <message>
        <source>Conan fetches or builds packages again. Recipes that are only here are gone.</source>
        <translation>Conan lädt oder baut Pakete neu. Rezepte, die es nur hier gibt, sind weg.</translation>
    </message>
    <message>
        <source>vcpkg builds its packages again.</source>
        <translation>vcpkg baut seine Pakete neu.</translation>
    </message>
    <message>
        <source>Editors make them again. Settings, open work and history stay.</source>
        <translation>Editoren legen sie neu an. Einstellungen, Offenes und Verlauf bleiben.</translation>
    </message>
    <message>
        <source>Earlier states of your files. Nothing brings them back.</source>
        <translation>Frühere Stände Ihrer Dateien. Nichts bringt sie zurück.</translation>
    </message>
    <message>
        <source>Logs of coding agents that no agent reads again. Conversations stay.</source>
        <translation>Protokolle von Coding-Agenten, die kein Agent mehr liest. Gespräche bleiben.</translation>
    </message>
    <message>
        <source>Settings of shells for agents that ended long ago. An agent makes its own at its start.</source>
        <translation>Shell-Einstellungen für längst beendete Agenten. Ein Agent legt seine beim Start neu an.</translation>
    </message>
    <message>
        <source>Long texts that you pasted. Old prompts in the history refer to them.</source>
        <translation>Lange Texte, die Sie eingefügt haben. Alte Eingaben im Verlauf verweisen darauf.</translation>
    </message>
    <message>
        <source>Models and data sets. What is public can be fetched again.</source>
        <translation>Modelle und Datensätze. Öffentliche lassen sich erneut laden.</translation>
    </message>
    <message>
        <source>Parts of models, named after them. Those that you made here are gone for good.</source>
        <translation>Teile von Modellen, nach diesen benannt. Hier selbst erstellte sind endgültig weg.</translation>
    </message>
    <message>
        <source>Models. What is public can be fetched again.</source>
        <translation>Modelle. Öffentliche lassen sich erneut laden.</translation>
    </message>
    <message>
        <source>Applications make their caches again.</source>
        <translation>Anwendungen legen ihre Caches neu an.</translation>
    </message>
    <message>
        <source>Small pictures of your files. File managers make them again.</source>
        <translation>Kleine Vorschaubilder Ihrer Dateien. Dateiverwaltungen legen sie neu an.</translation>
    </message>
    <message>
        <source>The graphics driver compiles shaders again. Games may stutter at first.</source>
        <translation>Der Grafiktreiber kompiliert Shader neu. Spiele können anfangs ruckeln.</translation>
    </message>
    <message>
        <source>Reports of crashes that are a week old. They only help to find the fault.</source>
        <translation>Absturzberichte, die eine Woche alt sind. Sie dienen nur der Fehlersuche.</translation>
    </message>
    <message>
        <source>Podman fetches or builds images again. Stopped containers go.</source>
        <translation>Podman lädt oder baut Images neu. Angehaltene Container werden gelöscht.</translation>
    </message>
    <message>
        <source>They are installed already. The system asks for a password.</source>
        <translation>Sie sind bereits installiert. Das System fragt nach einem Passwort.</translation>
    </message>
    <message>
        <source>Old messages of the system go, the newest stay. It asks for a password.</source>
        <translation>Alte Meldungen des Systems werden gelöscht, die neuesten bleiben. Es fragt nach einem Passwort.</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Show floating widget on launch</source>
        <translation>Schwebendes Widget beim Start anzeigen</translation>
    </message>
    <message>
        <source>Show in %1</source>
        <translation>In %1 anzeigen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Texts, numbers and dates</source>
        <translation>Texte, Zahlen und Datumsangaben</translation>
    </message>
    <message>
        <source>Takes effect at the next start.</source>
        <translation>Gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Couldn&apos;t register: %1</source>
        <translation>Eintragen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unregister: %1</source>
        <translation>Austragen fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>Graph</name>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>bytes in a second</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>The line begins with the next figure.</source>
        <translation>Die Linie beginnt mit dem nächsten Wert.</translation>
    </message>
</context>
<context>
    <name>GroupHeader</name>
    <message>
        <source>%1 (%2), %3, %4 CPU</source>
        <translation>%1 (%2), %3, %4 CPU</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
    <message>
        <source>• %1 CPU</source>
        <translation>• %1 CPU</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>… +%1 more in Processes tab</source>
        <translation>… +%1 weitere unter „Prozesse“</translation>
    </message>
</context>
<context>
    <name>HistoryTab</name>
    <message>
        <source>Action history</source>
        <translation>Aktionsverlauf</translation>
    </message>
    <message>
        <source>No actions logged yet.</source>
        <translation>Noch keine Aktionen aufgezeichnet.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Beenden erzwungen</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Bereinigt</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren…</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Kommagetrennter Text (*.csv)</translation>
    </message>
    <message>
        <source>Clear action history?</source>
        <translation>Aktionsverlauf löschen?</translation>
    </message>
    <message>
        <source>This deletes ~/Library/Logs/Tavrin/actions.log.</source>
        <translation>Damit wird ~/Library/Logs/Tavrin/actions.log gelöscht.</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Alles löschen</translation>
    </message>
    <message>
        <source>That file is the log itself.</source>
        <translation>Diese Datei ist das Protokoll selbst.</translation>
    </message>
    <message>
        <source>The log was not exported. Choose another place.</source>
        <translation>Das Protokoll wurde nicht exportiert. Wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>Show all kinds</source>
        <translation>Alle Arten zeigen</translation>
    </message>
</context>
<context>
    <name>HistoryTableModel</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>IncidentDialog</name>
    <message>
        <source>%1 more than at first</source>
        <translation>%1 mehr als zu Beginn</translation>
    </message>
    <message>
        <source>%1 less than at first</source>
        <translation>%1 weniger als zu Beginn</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Waited for memory</source>
        <translation>Wartezeit auf Speicher</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Largest processes then</source>
        <translation>Größte Prozesse zu dieser Zeit</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Listens on %1</source>
        <translation>Wartet auf Verbindungen an %1</translation>
    </message>
    <message>
        <source>Program of the group %1</source>
        <translation>Programm der Gruppe %1</translation>
    </message>
    <message>
        <source>Program of no known group</source>
        <translation>Programm keiner bekannten Gruppe</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <comment>a point in time, and how long ago</comment>
        <translation>%1, vor %2</translation>
    </message>
    <message>
        <source>MCP server %1 for %2</source>
        <translation>MCP-Server %1 für %2</translation>
    </message>
    <message>
        <source>MCP server %1, which nobody uses any more</source>
        <translation>MCP-Server %1, den niemand mehr verwendet</translation>
    </message>
    <message>
        <source>Coding agent %1</source>
        <translation>Coding-Agent %1</translation>
    </message>
    <message>
        <source>MCP server for %1</source>
        <translation>MCP-Server für %1</translation>
    </message>
    <message>
        <source>Dev server of %1</source>
        <translation>Entwicklungsserver von %1</translation>
    </message>
    <message>
        <source>Dev server on %1 of %2</source>
        <translation>Entwicklungsserver an %1 von %2</translation>
    </message>
    <message>
        <source>Browser of %1</source>
        <translation>Browser von %1</translation>
    </message>
    <message>
        <source>Command of %1</source>
        <translation>Befehl von %1</translation>
    </message>
    <message>
        <source>Renderer of %1: a page or an extension</source>
        <translation>Darstellungsprozess von %1: eine Seite oder eine Erweiterung</translation>
    </message>
    <message>
        <source>Graphics process of %1</source>
        <translation>Grafikprozess von %1</translation>
    </message>
    <message>
        <source>Service process of %1</source>
        <translation>Dienstprozess von %1</translation>
    </message>
    <message>
        <source>Process that %1 starts others from</source>
        <translation>Prozess, aus dem %1 andere startet</translation>
    </message>
    <message>
        <source>Content process of %1: pages or extensions</source>
        <translation>Inhaltsprozess von %1: Seiten oder Erweiterungen</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Beenden erzwungen</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Dateien anzeigen</translation>
    </message>
    <message>
        <source>Show environment</source>
        <translation>Umgebung anzeigen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Where it is from</source>
        <translation>Herkunft</translation>
    </message>
    <message>
        <source>PID</source>
        <translation>PID</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Gestartet</translation>
    </message>
    <message>
        <source>Threads</source>
        <translation>Threads</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Control group</source>
        <translation>Kontrollgruppe</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Started from</source>
        <translation>Gestartet von</translation>
    </message>
    <message>
        <source>Its parents are not listed.</source>
        <translation>Seine Elternprozesse sind nicht aufgeführt.</translation>
    </message>
    <message>
        <source>Close the details</source>
        <translation>Details schließen</translation>
    </message>
    <message>
        <source>Choose a process in the table.</source>
        <translation>Wählen Sie einen Prozess in der Tabelle.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>It has ended.</source>
        <translation>Der Prozess ist beendet.</translation>
    </message>
    <message>
        <source>Quit %1</source>
        <translation>%1 beenden</translation>
    </message>
    <message>
        <source>Force kill %1</source>
        <translation>Beenden von %1 erzwingen</translation>
    </message>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>%n offene Datei</numerusform>
            <numerusform>%n offene Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>listens on %1</source>
        <translation>lauscht auf %1</translation>
    </message>
    <message>
        <source>Unknown: the system tells it only of your own processes.</source>
        <translation>Unbekannt: Das System nennt es nur von eigenen Prozessen.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Offene Dateien</translation>
    </message>
    <message>
        <source>The first %1 are listed.</source>
        <translation>Die ersten %1 sind aufgeführt.</translation>
    </message>
    <message>
        <source>The system refuses it</source>
        <translation>Das System verweigert es</translation>
    </message>
    <message>
        <source>hidden, as it may be a secret</source>
        <translation>ausgeblendet, weil es geheim sein kann</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Sie ist leer.</translation>
    </message>
    <message>
        <source>Unknown: it has ended.</source>
        <translation>Unbekannt: er ist beendet.</translation>
    </message>
</context>
<context>
    <name>LeaveOutOffer</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>You left this out twice. The Cleanup settings have the list.</source>
        <translation>Sie haben dies zweimal ausgelassen. Die Liste finden Sie in den Einstellungen unter „Bereinigung“.</translation>
    </message>
    <message>
        <source>Never clean this?</source>
        <translation>Dies nie bereinigen?</translation>
    </message>
    <message>
        <source>Never Clean</source>
        <translation>Nie bereinigen</translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>in Gebrauch durch %1</translation>
    </message>
    <message>
        <source>uncommitted changes</source>
        <translation>nicht eingecheckte Änderungen</translation>
    </message>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>Angehalten: %n Ordner entfernt, ~%1 freigegeben</numerusform>
            <numerusform>Angehalten: %n Ordner entfernt, ~%1 freigegeben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>%n Ordner entfernt, ~%1 freigegeben</numerusform>
            <numerusform>%n Ordner entfernt, ~%1 freigegeben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>%n Projekt gefunden</numerusform>
            <numerusform>%n Projekte gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Looking in %1</source>
        <translation>Suche in %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 wird entfernt</translation>
    </message>
</context>
<context>
    <name>MCPCard</name>
    <message>
        <source>Claude Code &amp; MCP</source>
        <translation>Claude Code und MCP</translation>
    </message>
    <message>
        <source>Loaded servers + orphan detection</source>
        <translation>Geladene Server und Erkennung verwaister Server</translation>
    </message>
    <message>
        <source>Configured</source>
        <translation>Konfiguriert</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Laufend</translation>
    </message>
    <message>
        <source>Orphans</source>
        <translation>Verwaist</translation>
    </message>
    <message>
        <source>Orphan RAM</source>
        <translation>Deren RAM</translation>
    </message>
    <message>
        <source>Kill orphans</source>
        <translation>Verwaiste beenden</translation>
    </message>
    <message>
        <source>Running servers</source>
        <translation>Laufende Server</translation>
    </message>
    <message>
        <source>No ~/.claude/mcp.json found — nothing configured globally.</source>
        <translation>Keine ~/.claude/mcp.json gefunden – global ist nichts konfiguriert.</translation>
    </message>
    <message>
        <source>A configuration file is being read. Its servers are counted after that.</source>
        <translation>Eine Konfigurationsdatei wird gelesen. Ihre Server werden danach gezählt.</translation>
    </message>
</context>
<context>
    <name>MCPInspector</name>
    <message>
        <source>(%1 or gone)</source>
        <translation>(%1 oder beendet)</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Show or Hide Sidebar</source>
        <translation>Seitenleiste ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>MemoryCard</name>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Free RAM without quitting your work</source>
        <translation>RAM freigeben, ohne Ihre Arbeit zu beenden</translation>
    </message>
    <message>
        <source>Pressure nudge</source>
        <translation>Speicherdruck</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM freigeben</translation>
    </message>
    <message>
        <source>Pressure: free + compress. Deep purge prompts admin and flushes the unified buffer cache (heavier).</source>
        <translation>Speicherdruck: freigeben und komprimieren. „Tief leeren“ fragt nach Administratorrechten und leert den gesamten Puffercache (aufwendiger).</translation>
    </message>
    <message>
        <source>Purging…</source>
        <translation>Wird geleert…</translation>
    </message>
    <message>
        <source>Deep purge (admin)</source>
        <translation>Tief leeren (Admin)</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop purging</source>
        <translation>Leeren anhalten</translation>
    </message>
</context>
<context>
    <name>MemoryKindsBar</name>
    <message>
        <source>Own</source>
        <translation>Eigen</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>In memory, kinds unknown</source>
        <translation>Im Speicher, Art unbekannt</translation>
    </message>
    <message>
        <source>In swap</source>
        <translation>Im Swap</translation>
    </message>
</context>
<context>
    <name>MemoryLineUp</name>
    <message>
        <source>Groups %1</source>
        <translation>Gruppen %1</translation>
    </message>
    <message>
        <source>of these, caches of files −%1</source>
        <translation>davon Dateicaches −%1</translation>
    </message>
    <message>
        <source>Other users %1</source>
        <translation>Andere Benutzer %1</translation>
    </message>
    <message>
        <source>Kernel %1</source>
        <translation>Kernel %1</translation>
    </message>
    <message>
        <source>Shared memory and the rest %1</source>
        <translation>Gemeinsamer Speicher und Rest %1</translation>
    </message>
    <message>
        <source>Used %1</source>
        <translation>Belegt %1</translation>
    </message>
</context>
<context>
    <name>MemoryPage</name>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>Belegter Swap</translation>
    </message>
    <message>
        <source>Time that programs waited for memory</source>
        <translation>Zeit, die Programme auf Speicher warteten</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Komprimiert</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Some programs</source>
        <translation>Einige Programme</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Alle Programme</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>File cache</source>
        <translation>Datei-Cache</translation>
    </message>
</context>
<context>
    <name>MenuBarController</name>
    <message>
        <source>CPU %1% • RAM %2%</source>
        <translation>CPU %1&#xa0;% • RAM %2&#xa0;%</translation>
    </message>
    <message>
        <source>CPU %1%</source>
        <translation>CPU %1&#xa0;%</translation>
    </message>
    <message>
        <source>RAM %1%</source>
        <translation>RAM %1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuBarPanel</name>
    <message>
        <source>Top 5 by RAM</source>
        <translation>Top 5 nach RAM</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Toggle floating widget</source>
        <translation>Schwebendes Widget ein/aus</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>Temp.</translation>
    </message>
</context>
<context>
    <name>MetricTile</name>
    <message>
        <source>0–%1</source>
        <translation>0–%1</translation>
    </message>
</context>
<context>
    <name>Metrics</name>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Thermal</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Swap %1</source>
        <translation>Swap %1</translation>
    </message>
    <message>
        <source>No swap</source>
        <translation>Kein Swap</translation>
    </message>
    <message>
        <source>%1 • pressure %2</source>
        <comment>used memory; a share of time</comment>
        <translation>%1 • Druck %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for memory, all of them %2</source>
        <translation>Programme warteten %1 der letzten zehn Sekunden auf Speicher, alle zugleich %2</translation>
    </message>
    <message>
        <source>Programs waited %1 of the last ten seconds for disks, all of them %2</source>
        <translation>Programme warteten %1 der letzten zehn Sekunden auf Datenträger, alle zugleich %2</translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Show all groups</source>
        <translation>Alle Gruppen anzeigen</translation>
    </message>
    <message>
        <source>Show all sizes</source>
        <translation>Alle Größen anzeigen</translation>
    </message>
    <message>
        <source>Clear all filters</source>
        <translation>Alle Filter aufheben</translation>
    </message>
    <message>
        <source>No processes match</source>
        <translation>Keine passenden Prozesse</translation>
    </message>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>Mindest-RAM von %1 MB blendet %n weiteren aus.</numerusform>
            <numerusform>Mindest-RAM von %1 MB blendet %n weitere aus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>Die Gruppe %1 blendet %n weiteren aus.</numerusform>
            <numerusform>Die Gruppe %1 blendet %n weitere aus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>Die Suche blendet %n weiteren aus.</numerusform>
            <numerusform>Die Suche blendet %n weitere aus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>Die Filter zusammen blenden %n Prozess aus.</numerusform>
            <numerusform>Die Filter zusammen blenden %n Prozesse aus.</numerusform>
        </translation>
    </message>
    <message>
        <source>Change the search, the group or Min RAM to see more.</source>
        <translation>Ändern Sie Suche, Gruppe oder Mindest-RAM, um mehr zu sehen.</translation>
    </message>
    <message>
        <source>No processes</source>
        <translation>Keine Prozesse</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n große Sitzung</numerusform>
            <numerusform>%n große Sitzungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n untätiger Agent</numerusform>
            <numerusform>%n untätige Agenten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
</context>
<context>
    <name>NukePreview</name>
    <message>
        <source>Quit “%1” and all %2 helpers?</source>
        <translation>„%1“ und alle %2 Hilfsprozesse beenden?</translation>
    </message>
    <message>
        <source>Kill all %1 “%2” processes?</source>
        <translation>Alle %1 „%2“-Prozesse beenden?</translation>
    </message>
    <message>
        <source>Tells %1 to quit cleanly — closes all %2 child processes in one sweep, no per-tab pop-ups. Frees ≈%3.</source>
        <translation>Fordert %1 auf, sich sauber zu beenden – schließt alle %2 Kindprozesse auf einmal, ohne Rückfrage je Tab. Gibt ≈%3 frei.</translation>
    </message>
    <message>
        <source>Sends SIGTERM to all %1 PIDs. Use sparingly — unsaved work in those processes may be lost.</source>
        <translation>Sendet SIGTERM an alle %1 PIDs. Mit Bedacht verwenden – nicht gespeicherte Arbeit in diesen Prozessen kann verloren gehen.</translation>
    </message>
    <message>
        <source>PIDs: %1</source>
        <translation>PIDs: %1</translation>
    </message>
    <message>
        <source>%1 of its files stay in the cache.</source>
        <translation>%1 seiner Dateien bleiben im Cache.</translation>
    </message>
    <message>
        <source>What runs in its terminals ends too (≈%1): %2.</source>
        <translation>Auch was in seinen Terminals läuft, endet (≈%1): %2.</translation>
    </message>
    <message>
        <source>Quit %1 (≈%2)</source>
        <translation>%1 beenden (≈%2)</translation>
    </message>
    <message>
        <source>Force-quit %1 (no save prompt)</source>
        <translation>Beenden von %1 erzwingen (ohne Speichern-Rückfrage)</translation>
    </message>
    <message>
        <source>Kill %1 (≈%2)</source>
        <translation>%1 beenden (≈%2)</translation>
    </message>
    <message>
        <source>Couldn&apos;t tell %1 to quit (it may not be scriptable). Try the force variant.</source>
        <translation>%1 ließ sich nicht zum Beenden auffordern (vielleicht nicht skriptfähig). Versuchen Sie die erzwungene Variante.</translation>
    </message>
    <message>
        <source>%1 quit cleanly — %2 helpers closed (≈%3 freed)</source>
        <translation>%1 sauber beendet – %2 Hilfsprozesse geschlossen (≈%3 freigegeben)</translation>
    </message>
    <message>
        <source>Killed %1/%2 “%3” processes (≈%4 targeted)</source>
        <translation>%1/%2 „%3“-Prozesse beendet (≈%4 angestrebt)</translation>
    </message>
</context>
<context>
    <name>NullPlatform</name>
    <message>
        <source>Nothing can be started at login here.</source>
        <translation>Hier kann bei der Anmeldung nichts gestartet werden.</translation>
    </message>
</context>
<context>
    <name>OptimizeView</name>
    <message>
        <source>Optimize</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Sent memory_pressure -l warn</source>
        <translation>memory_pressure -l warn gesendet</translation>
    </message>
    <message>
        <source>memory_pressure failed</source>
        <translation>memory_pressure fehlgeschlagen</translation>
    </message>
    <message>
        <source>Inactive memory purged</source>
        <translation>Inaktiver Speicher geleert</translation>
    </message>
    <message>
        <source>Purge cancelled or failed</source>
        <translation>Leeren abgebrochen oder fehlgeschlagen</translation>
    </message>
    <message>
        <source>Killed %1 orphan MCP server(s)</source>
        <translation>Verwaiste MCP-Server beendet: %1</translation>
    </message>
    <message>
        <source>No orphan MCPs to kill</source>
        <translation>Keine verwaisten MCP-Server zu beenden</translation>
    </message>
</context>
<context>
    <name>OutcomeList</name>
    <message>
        <source>Left alone: it belongs to something else</source>
        <translation>Unberührt: gehört zu etwas anderem</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Force-killed</source>
        <translation>Beenden erzwungen</translation>
    </message>
    <message>
        <source>Ignored SIGTERM/KILL</source>
        <translation>SIGTERM/KILL ignoriert</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Still running</source>
        <translation>Läuft noch</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
</context>
<context>
    <name>OverviewView</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Free RAM</source>
        <translation>RAM freigeben</translation>
    </message>
    <message>
        <source>Floating Widget</source>
        <translation>Schwebendes Widget</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
</context>
<context>
    <name>PlaceFinder</name>
    <message>
        <source>%1 does not answer.</source>
        <translation>%1 antwortet nicht.</translation>
    </message>
</context>
<context>
    <name>PresetTable</name>
    <message>
        <source>Quick Kill presets</source>
        <translation>Vorgaben zum Schnellbeenden</translation>
    </message>
    <message>
        <source>No presets. Add one, or reset to the defaults.</source>
        <translation>Keine Vorgaben. Fügen Sie eine hinzu, oder setzen Sie die Liste zurück.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>PresetTableModel</name>
    <message>
        <source>%1m</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Erzw.</translation>
    </message>
    <message>
        <source>No force</source>
        <translation>Nicht erzwingen</translation>
    </message>
</context>
<context>
    <name>PresetTile</name>
    <message>
        <source>%1, %2, %3 matching</source>
        <translation>%1, %2, Treffer: %3</translation>
    </message>
</context>
<context>
    <name>ProcessActions</name>
    <message>
        <source>No process of the session could be paused.</source>
        <translation>Kein Prozess der Sitzung konnte angehalten werden.</translation>
    </message>
    <message>
        <source>The session has ended meanwhile.</source>
        <translation>Die Sitzung wurde inzwischen beendet.</translation>
    </message>
</context>
<context>
    <name>ProcessControls</name>
    <message>
        <source>Search name or path</source>
        <translation>Name oder Pfad suchen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>Mindest-RAM %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Group duplicates</source>
        <translation>Gleiche zusammenfassen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>Words of a name, a path or arguments, a PID, or :8080 for who listens on that port</source>
        <translation>Wörter aus Name, Pfad oder Argumenten, eine PID, oder :8080 für den, der an diesem Port wartet</translation>
    </message>
    <message>
        <source>Children below their parents</source>
        <translation>Kindprozesse unter ihren Elternprozessen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Shows the chosen process in a panel beside the table</source>
        <translation>Zeigt den gewählten Prozess neben der Tabelle</translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message>
        <source>Quit %1…</source>
        <translation>%1 beenden…</translation>
    </message>
    <message>
        <source>Show in group</source>
        <translation>In Gruppe anzeigen</translation>
    </message>
    <message>
        <source>As detected</source>
        <translation>Wie erkannt</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Quit…</source>
        <translation>Beenden…</translation>
    </message>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>%n Zeile beenden…</numerusform>
            <numerusform>%n Zeilen beenden…</numerusform>
        </translation>
    </message>
    <message>
        <source>Force kill…</source>
        <translation>Beenden erzwingen…</translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>Beenden von %n Zeile erzwingen…</numerusform>
            <numerusform>Beenden von %n Zeilen erzwingen…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessRow</name>
    <message>
        <source>Quit (SIGTERM)</source>
        <translation>Beenden (SIGTERM)</translation>
    </message>
    <message>
        <source>Force kill (SIGKILL)</source>
        <translation>Beenden erzwingen (SIGKILL)</translation>
    </message>
    <message>
        <source>%1 %2, CPU %3, memory %4</source>
        <translation>%1 %2, CPU %3, Speicher %4</translation>
    </message>
</context>
<context>
    <name>ProcessRowDelegate</name>
    <message>
        <source>%1 Its menu can end it.</source>
        <translation>%1 Das Menü der Zeile kann ihn beenden.</translation>
    </message>
</context>
<context>
    <name>ProcessTableModel</name>
    <message>
        <source>Force kill one</source>
        <translation>Beenden dieses Prozesses erzwingen</translation>
    </message>
    <message>
        <source>Quit all %1</source>
        <translation>Alle %1 beenden</translation>
    </message>
    <message>
        <source>Quit one</source>
        <translation>Diesen beenden</translation>
    </message>
    <message>
        <source>Nuke all %1 (with confirm)</source>
        <translation>Alle %1 abräumen (mit Rückfrage)</translation>
    </message>
    <message>
        <source>Nuke all %1 “%2” processes</source>
        <translation>Alle %1 „%2“-Prozesse abräumen</translation>
    </message>
    <message>
        <source>%1, row %2 of %3</source>
        <translation>%1, Zeile %2 von %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>folded</source>
        <translation>eingeklappt</translation>
    </message>
    <message>
        <source>open</source>
        <translation>ausgeklappt</translation>
    </message>
    <message>
        <source>ended</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>asked to end</source>
        <translation>zum Beenden aufgefordert</translation>
    </message>
</context>
<context>
    <name>ProcessTableView</name>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 ausblenden</translation>
    </message>
    <message>
        <source>Move column</source>
        <translation>Spalte verschieben</translation>
    </message>
    <message>
        <source>Reset columns</source>
        <translation>Spalten zurücksetzen</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Nach rechts</translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%1 von %n Prozess</numerusform>
            <numerusform>%1 von %n Prozessen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%1 Namen von %n Prozess</numerusform>
            <numerusform>%1 Namen von %n Prozessen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The order is held while a row is in use; F5 sorts anew.</source>
        <translation>%1. Die Reihenfolge bleibt, solange eine Zeile benutzt wird; F5 sortiert neu.</translation>
    </message>
    <message>
        <source>%1, as they were when power became low.</source>
        <translation>%1, Stand vor dem Energiesparen.</translation>
    </message>
</context>
<context>
    <name>ProjectLeftovers</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>it did not finish</source>
        <translation>wurde nicht fertig</translation>
    </message>
    <message>
        <source>a program that is unknown</source>
        <translation>ein unbekanntes Programm</translation>
    </message>
    <message>
        <source>something in it is new, or is on the list of what is never cleaned</source>
        <translation>etwas darin ist neu oder steht auf der Liste dessen, was nie bereinigt wird</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>in Gebrauch durch %1</translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message>
        <source>Add folder…</source>
        <translation>Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Search projects</source>
        <translation>Projekte suchen</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Projektreste</translation>
    </message>
    <message>
        <source>Folders that builds and installations have left. The project&apos;s own tools make them again, which takes time and perhaps the network.</source>
        <translation>Ordner, die Builds und Installationen hinterlassen haben. Die Werkzeuge des Projekts legen sie neu an; das braucht Zeit und vielleicht das Netz.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Looking for projects…</source>
        <translation>Projekte werden gesucht…</translation>
    </message>
    <message>
        <source>Stop searching or removing</source>
        <translation>Suchen oder Entfernen anhalten</translation>
    </message>
    <message>
        <source>Look for projects in</source>
        <translation>Projekte suchen in</translation>
    </message>
    <message>
        <source>Looks in the home folder, without hidden folders</source>
        <translation>Sucht im persönlichen Ordner, ohne versteckte Ordner</translation>
    </message>
    <message>
        <source>Looks in %1</source>
        <translation>Sucht in %1</translation>
    </message>
    <message>
        <source>and %1 more: search to see them</source>
        <translation>und %1 weitere: suchen Sie, um sie zu sehen</translation>
    </message>
    <message>
        <source>the search (%1)</source>
        <translation>die Suche (%1)</translation>
    </message>
    <message>
        <source>Not finished: %1</source>
        <translation>Nicht abgeschlossen: %1</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>Entfernen…</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>%n Ordner entfernen (%1)…</numerusform>
            <numerusform>%n Ordner entfernen (%1)…</numerusform>
        </translation>
    </message>
    <message>
        <source>What goes</source>
        <translation>Was gelöscht wird</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>%n Ordner entfernen?</numerusform>
            <numerusform>%n Ordner entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>They are gone for good, with all that is in them. Sources stay.</source>
        <translation>Sie werden mit ihrem gesamten Inhalt endgültig gelöscht. Quelltexte bleiben.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>No project here has anything left by a build. “Add folder…” looks in other places too.</source>
        <translation>In keinem Projekt hier hat ein Build etwas hinterlassen. „Ordner hinzufügen…“ sucht auch an anderen Orten.</translation>
    </message>
    <message>
        <source>“Stop” ends the search and keeps what it has found.</source>
        <translation>„Anhalten“ beendet die Suche und behält, was gefunden ist.</translation>
    </message>
    <message>
        <source>No projects match</source>
        <translation>Keine passenden Projekte</translation>
    </message>
    <message>
        <source>The search looks in the path, the folders and the note of each project.</source>
        <translation>Gesucht wird in Pfad, Ordnern und Notiz jedes Projekts.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>The search did not finish</source>
        <translation>Die Suche wurde nicht fertig</translation>
    </message>
</context>
<context>
    <name>ProtectedProcesses</name>
    <message>
        <source>It is the first process of this system, which ends with it.</source>
        <translation>Es ist der erste Prozess dieses Systems, das mit ihm endet.</translation>
    </message>
    <message>
        <source>It draws the screen: every window closes, and what is not saved in them is lost.</source>
        <translation>Er zeichnet den Bildschirm: Alle Fenster schließen sich, und nicht Gespeichertes darin geht verloren.</translation>
    </message>
    <message>
        <source>It holds your login: you are logged out, and what is not saved is lost.</source>
        <translation>Er hält Ihre Anmeldung: Sie werden abgemeldet, und nicht Gespeichertes geht verloren.</translation>
    </message>
    <message>
        <source>It runs the services of your login, such as sound and the message bus, and much of the desktop. They end with it.</source>
        <translation>Er betreibt die Dienste Ihrer Anmeldung, wie Ton und Nachrichtenbus, und einen großen Teil der Arbeitsumgebung. Sie enden mit ihm.</translation>
    </message>
    <message>
        <source>Tavrin was started from it and may end with it, as may everything else that was.</source>
        <translation>Tavrin wurde von ihm gestartet und kann mit ihm enden, wie alles andere, was von ihm gestartet wurde.</translation>
    </message>
</context>
<context>
    <name>QuickKillEditorSheet</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Process name pattern (substring match)</source>
        <translation>Muster des Prozessnamens (Teilzeichenfolge)</translation>
    </message>
    <message>
        <source>Min idle minutes</source>
        <translation>Mindestens untätig (Minuten)</translation>
    </message>
    <message>
        <source>Min RAM %1 MB</source>
        <translation>Mindest-RAM %1&#xa0;MB</translation>
    </message>
    <message>
        <source>Use SIGKILL (force)</source>
        <translation>SIGKILL verwenden (erzwingen)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QuickKillPreset</name>
    <message>
        <source>pattern: %1</source>
        <translation>Muster: %1</translation>
    </message>
    <message>
        <source>idle≥%1m</source>
        <translation>untätig≥%1&#xa0;min</translation>
    </message>
    <message>
        <source>RAM≥%1MB</source>
        <translation>RAM≥%1&#xa0;MB</translation>
    </message>
    <message>
        <source>force</source>
        <translation>erzwungen</translation>
    </message>
    <message>
        <source>%1: nothing matched</source>
        <translation>%1: keine Treffer</translation>
    </message>
    <message>
        <source>%1: killed %2/%3</source>
        <translation>%1: %2/%3 beendet</translation>
    </message>
</context>
<context>
    <name>QuickKillsCard</name>
    <message>
        <source>Quick Kills</source>
        <translation>Schnellbeenden</translation>
    </message>
    <message>
        <source>Preset purges for common RAM hogs</source>
        <translation>Vorgaben, die übliche Speicherfresser beenden</translation>
    </message>
    <message>
        <source>No presets. The settings add some under Quick Kills, or bring the built-in ones back.</source>
        <translation>Keine Voreinstellungen. Unter Schnellbeenden in den Einstellungen kommen welche hinzu oder die mitgelieferten zurück.</translation>
    </message>
</context>
<context>
    <name>QuickKillsTab</name>
    <message>
        <source>Quick Kills</source>
        <translation>Schnellbeenden</translation>
    </message>
    <message>
        <source>Custom Quick Kill presets</source>
        <translation>Eigene Vorgaben</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>New preset</source>
        <translation>Neue Vorgabe</translation>
    </message>
    <message>
        <source>Edit preset</source>
        <translation>Vorgabe bearbeiten</translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message>
        <source>Left by %1</source>
        <translation>Von %1 hinterlassen</translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 läuft %n-mal unter %2</numerusform>
            <numerusform>%1 läuft %n-mal unter %2</numerusform>
        </translation>
    </message>
    <message>
        <source>ended %1: %2</source>
        <translation>beendet %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>%n älterer</numerusform>
            <numerusform>%n ältere</numerusform>
        </translation>
    </message>
    <message>
        <source>End left-overs</source>
        <translation>Überreste beenden</translation>
    </message>
    <message>
        <source>End duplicates</source>
        <translation>Doppelte beenden</translation>
    </message>
</context>
<context>
    <name>RemainsHeader</name>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
</context>
<context>
    <name>ReturnTexts</name>
    <message>
        <source>≤ %1 will come back</source>
        <translation>≤ %1 werden frei</translation>
    </message>
    <message>
        <source>≈ %1 will come back</source>
        <translation>≈ %1 werden frei</translation>
    </message>
    <message>
        <source>Promised: %1 in memory, %2 in swap. Came back: %3 in memory, %4 in swap.</source>
        <translation>Versprochen: %1 im Speicher, %2 im Swap. Frei geworden: %3 im Speicher, %4 im Swap.</translation>
    </message>
</context>
<context>
    <name>RootView</name>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Hide sidebar</source>
        <translation>Seitenleiste ausblenden</translation>
    </message>
    <message>
        <source>Show sidebar</source>
        <translation>Seitenleiste einblenden</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>%1: %2</source>
        <comment>an action, and what it is about</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>RulesEngine</name>
    <message>
        <source>Free RAM low</source>
        <translation>Wenig freier RAM</translation>
    </message>
    <message>
        <source>Only %1 GB free — consider quitting top hogs or cleaning caches.</source>
        <translation>Nur %1&#xa0;GB frei – beenden Sie große Prozesse, oder bereinigen Sie Caches.</translation>
    </message>
    <message>
        <source>RAM getting tight</source>
        <translation>RAM wird knapp</translation>
    </message>
    <message>
        <source>%1 GB free.</source>
        <translation>%1&#xa0;GB frei.</translation>
    </message>
    <message>
        <source>Programs wait for memory</source>
        <translation>Programme warten auf Speicher</translation>
    </message>
    <message>
        <source>%1 of the last ten seconds. Free RAM, or quit what grows.</source>
        <translation>%1 der letzten zehn Sekunden. Geben Sie RAM frei, oder beenden Sie, was wächst.</translation>
    </message>
    <message>
        <source>Memory full in about %1 min</source>
        <translation>Speicher in etwa %1&#xa0;min voll</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grow %3/min</source>
        <translation>Speicher in etwa %1&#xa0;min voll – %2 wachsen um %3/min</translation>
    </message>
    <message>
        <source>Memory full in about %1 min — %2 grows %3/min</source>
        <translation>Speicher in etwa %1&#xa0;min voll – %2 wächst um %3/min</translation>
    </message>
    <message>
        <source>%1 are left, with swap.</source>
        <translation>%1 sind übrig, mit Swap.</translation>
    </message>
    <message>
        <source>The kernel</source>
        <translation>Der Kernel</translation>
    </message>
    <message>
        <source>%1 ended %2 at %3 because memory ran out</source>
        <translation>%1 hat %2 um %3 beendet, weil der Speicher voll war</translation>
    </message>
    <message>
        <source>%1 ended %2 (PID %3%4) at %5 because memory ran out</source>
        <translation>%1 hat %2 (PID %3%4) um %5 beendet, weil der Speicher voll war</translation>
    </message>
    <message>
        <source>Judged by what vanished then: the system&apos;s record is not readable.</source>
        <translation>Nach dem beurteilt, was zu dieser Zeit verschwand: Das Systemprotokoll ist nicht lesbar.</translation>
    </message>
    <message>
        <source>CPU saturated</source>
        <translation>CPU ausgelastet</translation>
    </message>
    <message>
        <source>%1 total — top: %2</source>
        <translation>%1 gesamt – am meisten: %2</translation>
    </message>
    <message>
        <source>%1 is running hot (%2)</source>
        <translation>%1 läuft heiß (%2)</translation>
    </message>
    <message>
        <source>%1 is throttling — reduce parallel agentic work or quit Docker/ollama.</source>
        <translation>%1 drosselt – lassen Sie weniger Agenten parallel laufen, oder beenden Sie Docker/ollama.</translation>
    </message>
    <message>
        <source>Heavy swap usage</source>
        <translation>Starke Auslagerung</translation>
    </message>
    <message>
        <source>%1 GB swapped — system will feel sluggish.</source>
        <translation>%1&#xa0;GB ausgelagert – das System reagiert träge.</translation>
    </message>
    <message>
        <source>Idle agent — %1</source>
        <translation>Untätiger Agent – %1</translation>
    </message>
    <message>
        <source>Idle agent — %1 in %2</source>
        <translation>Untätiger Agent – %1 in %2</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM. Quit?</source>
        <translation>Seit %1&#xa0;min untätig, %2 RAM. Beenden?</translation>
    </message>
    <message>
        <source>Idle %1 min, %2 RAM.</source>
        <translation>Seit %1&#xa0;min untätig, %2 RAM.</translation>
    </message>
    <message>
        <source>Browsers using %1</source>
        <translation>Browser belegen %1</translation>
    </message>
    <message>
        <source>That&apos;s %1 of total RAM. Closing idle tabs frees the most memory fastest.</source>
        <translation>Das sind %1 des gesamten RAM. Untätige Tabs zu schließen gibt am schnellsten am meisten Speicher frei.</translation>
    </message>
    <message>
        <source>Caches reclaimable: %1</source>
        <translation>Bereinigbare Caches: %1</translation>
    </message>
    <message>
        <source>%1 holds %2</source>
        <translation>%1 belegt %2</translation>
    </message>
</context>
<context>
    <name>SamplingTab</name>
    <message>
        <source>Sampling</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Sampling cadence</source>
        <translation>Messtakt</translation>
    </message>
    <message>
        <source>Poll interval</source>
        <translation>Messintervall</translation>
    </message>
    <message>
        <source>%1s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>History retention</source>
        <translation>Länge des Verlaufs</translation>
    </message>
    <message>
        <source>Keeps %1 samples for the Overview sparklines.</source>
        <translation>Behält %1 Messwerte für die Kurven der Übersicht.</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Energie</translation>
    </message>
    <message>
        <source>Pause sampling on Low Power Mode</source>
        <translation>Messung im Energiesparmodus anhalten</translation>
    </message>
</context>
<context>
    <name>SamplingTexts</name>
    <message>
        <source>Processes are not read while power is low. “Pause sampling on Low Power Mode” in the settings, under Sampling, changes that.</source>
        <translation>Im Energiesparmodus werden keine Prozesse gelesen. Das ändert „Messung im Energiesparmodus anhalten“ in den Einstellungen unter Messung.</translation>
    </message>
    <message>
        <source>The system lists no processes now. F5 reads them again.</source>
        <translation>Das System nennt gerade keine Prozesse. F5 liest sie neu.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
</context>
<context>
    <name>ServerRow</name>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Orphan %1, PID %2, parent: %3, %4</source>
        <translation>Verwaist: %1, PID %2, Elternprozess: %3, %4</translation>
    </message>
    <message>
        <source>Running %1, PID %2, parent: %3, %4</source>
        <translation>Läuft: %1, PID %2, Elternprozess: %3, %4</translation>
    </message>
    <message>
        <source>parent: %1</source>
        <translation>Elternprozess: %1</translation>
    </message>
    <message>
        <source>PID %1</source>
        <translation>PID %1</translation>
    </message>
</context>
<context>
    <name>ServerWatch</name>
    <message>
        <source>%1, no CPU for %2 h</source>
        <translation>%1, seit %2&#xa0;h ohne CPU</translation>
    </message>
    <message>
        <source>%1, no CPU for %2 min</source>
        <translation>%1, seit %2&#xa0;min ohne CPU</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>in Gebrauch durch %1</translation>
    </message>
    <message>
        <source>in use by %1 in %2</source>
        <translation>in Gebrauch durch %1 in %2</translation>
    </message>
    <message>
        <source>runs in the container %1</source>
        <translation>läuft im Container %1</translation>
    </message>
    <message>
        <source>run by the service manager as %1</source>
        <translation>vom Dienstverwalter als %1 ausgeführt</translation>
    </message>
    <message>
        <source>orphan: no agent or editor above it</source>
        <translation>verwaist: kein Agent oder Editor darüber</translation>
    </message>
    <message>
        <source>orphan: its host %1 ended at %2</source>
        <translation>verwaist: sein Host %1 endete um %2</translation>
    </message>
    <message>
        <source>orphan: no longer below its host %1</source>
        <translation>verwaist: nicht mehr unter seinem Host %1</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>SessionActions</name>
    <message>
        <source>End %1?</source>
        <translation>%1 beenden?</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Sitzung beenden</translation>
    </message>
    <message>
        <source>Could not pause %1.</source>
        <translation>%1 konnte nicht angehalten werden.</translation>
    </message>
    <message>
        <source>Could not resume %1.</source>
        <translation>%1 konnte nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Could not open %1.</source>
        <translation>%1 konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>SessionControls</name>
    <message>
        <source>Search sessions</source>
        <translation>Sitzungen suchen</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Agent, project, name, state, process or port (:5173)</source>
        <translation>Agent, Projekt, Name, Zustand, Prozess oder Port (:5173)</translation>
    </message>
</context>
<context>
    <name>SessionDialogs</name>
    <message>
        <source>What ends</source>
        <translation>Was beendet wird</translation>
    </message>
    <message>
        <source>The agent is asked first and has 5 s to save. What it started ends with it, and what stays is force-killed.</source>
        <translation>Zuerst wird der Agent aufgefordert und hat 5 s zum Speichern. Was er gestartet hat, endet mit ihm; was bleibt, wird zwangsweise beendet.</translation>
    </message>
    <message>
        <source>The processes are asked to end, and what stays is force-killed.</source>
        <translation>Die Prozesse werden zum Beenden aufgefordert; was bleibt, wird zwangsweise beendet.</translation>
    </message>
    <message>
        <source>This takes the conversation up again: %1</source>
        <translation>So wird das Gespräch wieder aufgenommen: %1</translation>
    </message>
    <message>
        <source>Stops the session and all that it started: they keep their memory and use no processor time until you resume them, or close this program.</source>
        <translation>Hält die Sitzung und alles an, was sie gestartet hat: Der Speicher bleibt belegt, Prozessorzeit wird nicht verbraucht, bis Sie die Sitzung fortsetzen oder dieses Programm schließen.</translation>
    </message>
    <message>
        <source>The terminal&apos;s shell may report the agent as stopped. After Resume, type fg there.</source>
        <translation>Die Shell des Terminals meldet den Agenten vielleicht als angehalten. Geben Sie dort nach „Fortsetzen“ fg ein.</translation>
    </message>
    <message>
        <source>Pause %1?</source>
        <translation>%1 anhalten?</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>SessionHeader</name>
    <message>
        <source>%1 in swap</source>
        <translation>%1 im Swap</translation>
    </message>
    <message>
        <source>%1, %2, %3, %4 CPU, %5</source>
        <translation>%1, %2, %3, %4 CPU, %5</translation>
    </message>
    <message>
        <source>last active %1</source>
        <translation>zuletzt aktiv: %1</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
</context>
<context>
    <name>SessionProcessRow</name>
    <message>
        <source>listens on %1</source>
        <translation>lauscht auf %1</translation>
    </message>
    <message>
        <source>running for %1</source>
        <translation>läuft seit %1</translation>
    </message>
    <message>
        <source>%1, PID %2</source>
        <translation>%1, PID %2</translation>
    </message>
</context>
<context>
    <name>SessionResultView</name>
    <message>
        <source>%1: ended %2 of %3, freed ~%4</source>
        <translation>%1: %2 von %3 beendet, ~%4 freigegeben</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Take the conversation up again: %1</source>
        <translation>Gespräch wieder aufnehmen: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy command</source>
        <translation>Befehl kopieren</translation>
    </message>
</context>
<context>
    <name>SessionRow</name>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Details kopieren</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>End session</source>
        <translation>Sitzung beenden</translation>
    </message>
    <message>
        <source>Pause…</source>
        <translation>Anhalten…</translation>
    </message>
    <message>
        <source>End session…</source>
        <translation>Sitzung beenden…</translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message>
        <source>agent</source>
        <translation>Agent</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agent</translation>
    </message>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>%n Agent</numerusform>
            <numerusform>%n Agenten</numerusform>
        </translation>
    </message>
    <message>
        <source>MCP server</source>
        <translation>MCP-Server</translation>
    </message>
    <message>
        <source>MCP servers</source>
        <translation>MCP-Server</translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>%n Server</numerusform>
            <numerusform>%n Server</numerusform>
        </translation>
    </message>
    <message>
        <source>dev server</source>
        <translation>Entwicklungsserver</translation>
    </message>
    <message>
        <source>Dev servers</source>
        <translation>Entwicklungsserver</translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>%n Entwicklungsserver</numerusform>
            <numerusform>%n Entwicklungsserver</numerusform>
        </translation>
    </message>
    <message>
        <source>browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Browser</translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>%n Browser</numerusform>
            <numerusform>%n Browser</numerusform>
        </translation>
    </message>
    <message>
        <source>command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>%n Befehl</numerusform>
            <numerusform>%n Befehle</numerusform>
        </translation>
    </message>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
    <message>
        <source>Waiting for you</source>
        <translation>Wartet auf Sie</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Untätig</translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>%n Sitzung</numerusform>
            <numerusform>%n Sitzungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>%n untätig</numerusform>
            <numerusform>%n untätig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>%n Prozess</numerusform>
            <numerusform>%n Prozesse</numerusform>
        </translation>
    </message>
    <message>
        <source>resident %1</source>
        <translation>resident %1</translation>
    </message>
</context>
<context>
    <name>SessionsView</name>
    <message>
        <source>No sessions</source>
        <translation>Keine Sitzungen</translation>
    </message>
    <message>
        <source>Coding agents that run in a terminal or an editor appear here, each with its MCP servers, dev servers, browsers and commands, and with what an ended one left running.</source>
        <translation>Hier erscheinen Coding-Agenten, die in einem Terminal oder Editor laufen, jeweils mit ihren MCP-Servern, Entwicklungsservern, Browsern und Befehlen – und mit dem, was ein beendeter Agent laufen ließ.</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche löschen</translation>
    </message>
    <message>
        <source>No sessions match</source>
        <translation>Keine passenden Sitzungen</translation>
    </message>
    <message>
        <source>Every word of the search has to be in the agent, the project, the name, the state, a process or a port of the session.</source>
        <translation>Jedes Wort der Suche muss in Agent, Projekt, Name, Zustand, einem Prozess oder einem Port der Sitzung vorkommen.</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sitzungen</translation>
    </message>
    <message>
        <source>Left-overs</source>
        <translation>Überreste</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doppelte</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Tavrin Settings</source>
        <translation>Tavrin-Einstellungen</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Reiter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nächster Reiter</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Vorheriger Reiter</translation>
    </message>
</context>
<context>
    <name>ShortcutsSheet</name>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Go to a section</source>
        <translation>Zu einem Bereich gehen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Quit Tavrin</source>
        <translation>Tavrin beenden</translation>
    </message>
    <message>
        <source>This sheet</source>
        <translation>Diese Übersicht</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Jump to a name</source>
        <translation>Zu einem Namen springen</translation>
    </message>
    <message>
        <source>its first letters</source>
        <translation>seine ersten Buchstaben</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Erste und letzte Zeile</translation>
    </message>
    <message>
        <source>Select more rows, or all</source>
        <translation>Weitere oder alle Zeilen auswählen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Force kill</source>
        <translation>Beenden erzwungen</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menü der Zeile</translation>
    </message>
    <message>
        <source>Copy the selected rows</source>
        <translation>Ausgewählte Zeilen kopieren</translation>
    </message>
    <message>
        <source>Fold or open a branch of the tree</source>
        <translation>Zweig des Baums ein- oder ausklappen</translation>
    </message>
    <message>
        <source>Read and sort anew</source>
        <translation>Neu lesen und sortieren</translation>
    </message>
    <message>
        <source>Leave the row</source>
        <translation>Zeile verlassen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Show or hide the sidebar</source>
        <translation>Seitenleiste ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>In progress</source>
        <translation>Läuft</translation>
    </message>
</context>
<context>
    <name>Stepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Weniger: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Mehr: %1</translation>
    </message>
</context>
<context>
    <name>SummedMemory</name>
    <message>
        <source>resident %1, in swap %2</source>
        <translation>resident %1, im Swap %2</translation>
    </message>
    <message>
        <source>at least %1 (%2)</source>
        <translation>mindestens %1 (%2)</translation>
    </message>
    <message>
        <source>about %1 (%2)</source>
        <translation>etwa %1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>TextListEditor</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>Choose Folder</source>
        <translation>Ordner wählen</translation>
    </message>
</context>
<context>
    <name>ThermalPage</name>
    <message>
        <source>Thermal</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>No temperatures</source>
        <translation>Keine Temperaturen</translation>
    </message>
    <message>
        <source>This computer shows no sensors to programs, as most virtual machines. The tile shows the state that the kernel reports.</source>
        <translation>Dieser Computer zeigt Programmen keine Sensoren, wie die meisten virtuellen Maschinen. Die Kachel zeigt den Zustand, den der Kernel meldet.</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Sensoren</translation>
    </message>
    <message>
        <source>A sensor does not answer. It is asked again once it does, while this page is open.</source>
        <translation>Ein Sensor antwortet nicht. Er wird wieder gefragt, sobald er es tut, solange diese Seite offen ist.</translation>
    </message>
</context>
<context>
    <name>ThermalState</name>
    <message>
        <source>Cool</source>
        <translation>Kühl</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>Warm</translation>
    </message>
    <message>
        <source>Hot</source>
        <translation>Heiß</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
</context>
<context>
    <name>Translations</name>
    <message>
        <source>Claude Code plugin cache</source>
        <translation>Claude-Code-Plug-in-Cache</translation>
    </message>
    <message>
        <source>npx cache</source>
        <translation>npx-Cache</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <translation>Playwright-Browser</translation>
    </message>
    <message>
        <source>User caches</source>
        <translation>Benutzercaches</translation>
    </message>
    <message>
        <source>User logs</source>
        <translation>Benutzerprotokolle</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Old /tmp (&gt;7d)</source>
        <translation>Altes in /tmp (&gt;7 T)</translation>
    </message>
    <message>
        <source>Old Downloads (&gt;30d)</source>
        <translation>Alte Downloads (&gt;30 T)</translation>
    </message>
    <message>
        <source>Old Desktop screenshots (&gt;30d)</source>
        <translation>Alte Bildschirmfotos (&gt;30 T)</translation>
    </message>
    <message>
        <source>Claude Code &amp; Agents</source>
        <translation>Claude Code &amp; Agenten</translation>
    </message>
    <message>
        <source>IDEs</source>
        <translation>IDEs</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Terminals</translation>
    </message>
    <message>
        <source>Browsers</source>
        <translation>Browser</translation>
    </message>
    <message>
        <source>Docker &amp; Containers</source>
        <translation>Docker &amp; Container</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Gradle logs (&gt;7d)</source>
        <translation>Gradle-Protokolle (&gt;7 T)</translation>
    </message>
    <message>
        <source>Cargo sources and checkouts</source>
        <translation>Cargo-Quellen und -Checkouts</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <translation>Go-Build-Cache</translation>
    </message>
    <message>
        <source>Rust toolchains</source>
        <translation>Rust-Toolchains</translation>
    </message>
    <message>
        <source>Conda packages</source>
        <translation>Conda-Pakete</translation>
    </message>
    <message>
        <source>Editor caches</source>
        <translation>Editor-Caches</translation>
    </message>
    <message>
        <source>Local history of JetBrains editors</source>
        <translation>Lokaler Verlauf der JetBrains-Editoren</translation>
    </message>
    <message>
        <source>Agent logs (&gt;7d)</source>
        <translation>Agentenprotokolle (&gt;7 T)</translation>
    </message>
    <message>
        <source>Agent shell snapshots (&gt;30d)</source>
        <translation>Agenten-Shell-Abbilder (&gt;30 T)</translation>
    </message>
    <message>
        <source>Texts pasted into Claude Code (&gt;30d)</source>
        <translation>In Claude Code eingefügt (&gt;30 T)</translation>
    </message>
    <message>
        <source>Hugging Face models</source>
        <translation>Hugging-Face-Modelle</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <translation>Ollama-Modelle</translation>
    </message>
    <message>
        <source>LM Studio models</source>
        <translation>LM-Studio-Modelle</translation>
    </message>
    <message>
        <source>Flatpak application caches</source>
        <translation>Flatpak-Anwendungscaches</translation>
    </message>
    <message>
        <source>Snap application caches</source>
        <translation>Snap-Anwendungscaches</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
    <message>
        <source>Shader caches</source>
        <translation>Shader-Caches</translation>
    </message>
    <message>
        <source>Crash reports (&gt;7d)</source>
        <translation>Absturzberichte (&gt;7 T)</translation>
    </message>
    <message>
        <source>Downloaded system packages</source>
        <translation>Geladene Systempakete</translation>
    </message>
    <message>
        <source>System journal over 500 MB</source>
        <translation>Systemjournal über 500 MB</translation>
    </message>
    <message>
        <source>CPU% • RAM%</source>
        <translation>CPU-% • RAM-%</translation>
    </message>
    <message>
        <source>CPU%</source>
        <translation>CPU-%</translation>
    </message>
    <message>
        <source>RAM%</source>
        <translation>RAM-%</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>5 min</source>
        <translation>5 min</translation>
    </message>
    <message>
        <source>25 min</source>
        <translation>25 min</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>Project leftovers</source>
        <translation>Projektreste</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Optimize</source>
        <translation>Optimieren</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Cleanup</source>
        <translation>Bereinigung</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sitzungen</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>Last active</source>
        <translation>Zuletzt aktiv</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Quick Kills</source>
        <translation>Schnellbeenden</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message>
        <source>Open dashboard</source>
        <translation>Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Hide widget</source>
        <translation>Widget ausblenden</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>RAM</source>
        <translation>RAM</translation>
    </message>
    <message>
        <source>Disk free</source>
        <translation>Platte frei</translation>
    </message>
    <message>
        <source>Therm</source>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Groups (RAM)</source>
        <translation>Gruppen (RAM)</translation>
    </message>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ %n weitere Warnung</numerusform>
            <numerusform>+ %n weitere Warnungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1G</source>
        <translation>%1G</translation>
    </message>
    <message>
        <source>%1M</source>
        <translation>%1M</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>task bar</source>
        <translation>der Taskleiste</translation>
    </message>
    <message>
        <source>Status area</source>
        <translation>Statusbereich</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
</TS>
