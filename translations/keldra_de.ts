<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Keines der eigenen Programme scheint die Partition zu benutzen</translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 hat nicht rechtzeitig geantwortet: vielleicht wurde nicht alles darauf geschrieben</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>In Benutzung durch %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>noch keine Antwort</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>Grundlage</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Laufwerksdienst</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Laufwerke werden gesucht</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>Der Laufwerksdienst hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Kein Laufwerksdienst antwortet</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Ohne ihn sind keine Laufwerke zu sehen. Die Liste füllt sich, sobald er läuft.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Keine Partition vorhanden</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Die Partitionen eines Laufwerks erscheinen hier, sobald es angeschlossen ist.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Keine EFI-Systempartition vorhanden</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Ein Laufwerk mit einer solchen anschließen oder „Alle anzeigen“ ankreuzen.</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 ist nicht vorhanden</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>%1 darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>für %1 ließ sich kein Dateimanager starten</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Eingehängt</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Nicht eingehängt</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Die Änderungen ließen sich beim Beenden nicht speichern. Trotzdem beenden?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Alle Änderungen seit dem letzten erfolgreichen Speichern gehen verloren, wenn das Programm jetzt beendet wird</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Diese Liste ist nicht vollständig: Das Bild von %1 lässt sich nicht lesen.</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>In Benutzung durch %1 und %n weiteres</numerusform>
            <numerusform>In Benutzung durch %1 und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Tray</source>
        <translation>Infobereich</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenstersystem</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra läuft bereits, antwortet aber nicht. Prozess %1 beenden und Keldra erneut starten.</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME zeigt von sich aus keine Symbole im Infobereich. Die Erweiterung „AppIndicator and KStatusNotifierItem Support“ installieren und einschalten, um das von Keldra zu sehen. Bis dahin öffnet ein weiterer Start von Keldra dieses Fenster.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Keine Leiste zeigt hier Symbole im Infobereich. Einer Leiste einen Infobereich („Statusbenachrichtigung“) hinzufügen, um das von Keldra zu sehen. Bis dahin öffnet ein weiterer Start von Keldra dieses Fenster.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>Über Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>EFI-Systempartitionen, nur einen Klick entfernt</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Kopiert alle Angaben als Text, für einen Fehlerbericht</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>einhängen: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>aushängen: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>eingehängt unter %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Laufwerke und Partitionen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Antworten</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>angeschlossen</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>abgezogen</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Mount</source>
        <translation>Einhängen</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Aushängen</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Zwischenfall</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>Wieder anschließen</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Volume, durch ein anderes Programm</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Name des Volumes</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Wie der Dienst auf Anfragen zur Partition antwortet</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Laufwerksdienst</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>antwortet</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>hat noch nicht geantwortet</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Laufwerk und Laufwerksdienst</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Keldra öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Aushängen erzwingen</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>ein simulierter Rechner</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>der des Fenstersystems</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keiner</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>wie verlangt</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>Laufwerk verschwindet vorher</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>Laufwerk verschwindet währenddessen</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>Laufwerk verschwindet danach</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>Dienst stürzt ab</translation>
    </message>
</context>
</TS>
