<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Żaden z własnych programów zdaje się jej nie używać</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>Używana przez %1 i %n inny</numerusform>
            <numerusform>Używana przez %1 i %n inne</numerusform>
            <numerusform>Używana przez %1 i %n innych</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 nie odpowiada na czas: być może nie wszystko zostało zapisane</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>Używana przez %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>jeszcze brak odpowiedzi</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>odpowiada</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>nieobecna</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencja</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Strona WWW</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>Oparte na</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Usługa dysków</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Ta lista nie jest pełna: nie można odczytać obrazu %1.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Wyszukiwanie dysków</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>Usługa dysków jeszcze nie odpowiedziała.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Żadna usługa dysków nie odpowiada</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Bez niej nie widać dysków. Lista wypełni się, gdy tylko zacznie działać.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Brak partycji</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Podłącz dysk, aby zobaczyć jego partycje.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Brak partycji systemowej EFI</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Podłącz dysk, który ją ma, albo zaznacz „Pokaż wszystkie”.</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 nie istnieje</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>brak uprawnień do odczytu %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>nie można uruchomić menedżera plików dla %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Zamontowana</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Niezamontowana</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Nie można zapisać zmian przy kończeniu. Zakończyć mimo to?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Zakończenie teraz spowoduje utratę wszystkich zmian od ostatniego udanego zapisu</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Zakończ mimo to</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Program Keldra już działa, ale nie odpowiada. Zakończ proces %1 i uruchom program ponownie.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zasobnik systemowy</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>System okien</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Środowisko</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME sam nie pokazuje ikon zasobnika. Aby widzieć ikonę Keldry, zainstaluj i włącz rozszerzenie „AppIndicator and KStatusNotifierItem Support”. Do tego czasu uruchom Keldrę jeszcze raz, aby otworzyć to okno.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Żaden panel nie pokazuje tu ikon zasobnika. Aby widzieć ikonę Keldry, dodaj do panelu zasobnik systemowy. Do tego czasu uruchom Keldrę jeszcze raz, aby otworzyć to okno.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>O programie Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Partycje systemowe EFI o jedno kliknięcie stąd</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>S&amp;kopiuj</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Kopiuje wszystko jako tekst, do zgłoszenia błędu</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Za&amp;mknij</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>montowanie: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>odmontowanie: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>zamontowana w %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Dyski i partycje</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Nośnik</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Wolumin</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Odpowiedzi</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>podłączony</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>odłączony</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Odpowiedzi usługi na żądania dotyczące partycji</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Wolumin, przez inny program</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Dysk i usługa dysków</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Zamontuj</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Odmontuj</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nazwa woluminu</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Wypadek</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Opóźnienie</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>Podłącz ponownie</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>jeszcze nie odpowiada</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>odpowiada</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>jest nieobecna</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Usługa dysków</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Otwórz program Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partycje</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Pokaż wszystkie</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Wymuś odmontowanie</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Strona WWW</translation>
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
        <translation>W toku</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>komputer symulowany</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>należący do systemu okien</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>jeszcze brak</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>zgodnie z żądaniem</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>dysk znika przed</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>dysk znika podczas</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>dysk znika po</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>usługa ulega awarii</translation>
    </message>
</context>
</TS>
