<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Nessuno dei propri programmi sembra usarla</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>In uso da %1 e %n altro</numerusform>
            <numerusform>In uso da %1 e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 non ha risposto in tempo: forse non è stato scritto tutto</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>In uso da %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>ancora nessuna risposta</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>risponde</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>assente</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licenza</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>Basato su</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Servizio dei dischi</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Questo elenco non è completo: l’immagine di %1 non si può leggere.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Ricerca dei dischi</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>Il servizio dei dischi non ha ancora risposto.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Nessun servizio dei dischi risponde</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Senza di esso i dischi non si vedono. L’elenco si riempie appena è in esecuzione.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Nessuna partizione</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Collegare un disco per vederne le partizioni.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Nessuna partizione di sistema EFI</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Collegare un disco che ne ha una oppure spuntare «Mostra tutto».</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 non esiste</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>manca il permesso di leggere %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>impossibile avviare un gestore di file per %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Montata</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Non montata</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Impossibile salvare le modifiche in uscita. Uscire comunque?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Uscendo ora si perdono tutte le modifiche fatte dall’ultimo salvataggio riuscito</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Esci comunque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra è già in esecuzione, ma non risponde. Terminare il processo %1 e riavviare Keldra.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Area di notifica</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Sistema di finestre</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Ambiente desktop</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME da solo non mostra icone nell’area di notifica. Installare e attivare l’estensione «AppIndicator and KStatusNotifierItem Support» per vedere quella di Keldra. Fino ad allora, avviare Keldra un’altra volta per aprire questa finestra.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Nessun pannello mostra qui icone di notifica. Aggiungere un’area di notifica a un pannello per vedere quella di Keldra. Fino ad allora, avviare Keldra un’altra volta per aprire questa finestra.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>Informazioni su Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Le partizioni di sistema EFI a portata di clic</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Copia tutto come testo, per segnalare un problema</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;hiudi</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>montare: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>smontare: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>montata su %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Dischi e partizioni</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Risposte</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>collegato</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>scollegato</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>Macchina</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Come il servizio risponde alle richieste per la partizione</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Volume, da un altro programma</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Disco e servizio dei dischi</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Monta</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Smonta</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nome del volume</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Incidente</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Ritardo</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>Ricollega</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>non ha ancora risposto</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>risponde</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>è assente</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Servizio dei dischi</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Apri Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partizioni</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Forza smontaggio</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Avvia all’accesso</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
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
        <translation>In corso</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>una macchina simulata</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>quella del sistema di finestre</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ancora nessuna</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>come richiesto</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>il disco sparisce prima</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>il disco sparisce durante</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>il disco sparisce dopo</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>il servizio si arresta</translation>
    </message>
</context>
</TS>
