<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Схоже, жодна з ваших програм його не використовує</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>Використовують %1 і ще %n програма</numerusform>
            <numerusform>Використовують %1 і ще %n програми</numerusform>
            <numerusform>Використовують %1 і ще %n програм</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 не відповідає вчасно: можливо, записано не все</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>Використовують %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>відповіді ще немає</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>відповідає</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>відсутня</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версія</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Ліцензія</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Вебсайт</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>На основі</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Система</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Служба дисків</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Цей список неповний: не вдається прочитати зображення %1.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Пошук дисків</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>Служба дисків ще не відповіла.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Жодна служба дисків не відповідає</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Без неї дисків не видно. Список заповниться, щойно вона запрацює.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Розділів немає</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>З’єднайте диск, щоб побачити його розділи.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Системних розділів EFI немає</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>З’єднайте диск, на якому він є, або позначте «Показати всі».</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 не існує</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>немає прав на читання %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>не вдалося запустити менеджер файлів для %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Змонтовано</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Не змонтовано</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Не вдалося зберегти зміни під час виходу. Усе одно вийти?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Якщо вийти зараз, усі зміни від останнього успішного збереження буде втрачено</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Усе одно вийти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra вже працює, але не відповідає. Завершіть процес %1 і запустіть Keldra знову.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Системний лоток</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Віконна система</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Стільниця</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME сам не показує піктограм лотка. Щоб бачити піктограму Keldra, встановіть і увімкніть розширення «AppIndicator and KStatusNotifierItem Support». До того часу запустіть Keldra ще раз, щоб відкрити це вікно.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Жодна панель тут не показує піктограм лотка. Щоб бачити піктограму Keldra, додайте до панелі системний лоток. До того часу запустіть Keldra ще раз, щоб відкрити це вікно.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>Про Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Системні розділи EFI за одне клацання</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копіювати</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Копіює все як текст для звіту про помилку</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Закрити</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>монтування: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>демонтування: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>змонтовано в %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Диски і розділи</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Назва</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Носій</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Том</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Відповіді</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>з’єднано</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>від’єднано</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>Комп’ютер</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Як служба відповідає на запити щодо розділу</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Том, іншою програмою</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Диск і служба дисків</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Змонтувати</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Демонтувати</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Назва тому</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Пригода</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Затримка</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Від’єднати</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>З’єднати знову</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>ще не відповіла</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>відповідає</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>відсутня</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Служба дисків</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Відкрити Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Розділи</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показати всі</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Демонтувати примусово</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Автозапуск</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Стан</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Відомості</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Вебсайт</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>Working</source>
        <translation>Виконується</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>імітований комп’ютер</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>віконної системи</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ще немає</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>за запитом</translation>
    </message>
    <message>
        <source>none</source>
        <translation>немає</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>диск зникає до</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>диск зникає під час</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>диск зникає після</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>служба аварійно завершується</translation>
    </message>
</context>
</TS>
