<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>נראה שאף אחת מהתוכניות שלך אינה משתמשת בה</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>בשימוש של %1 ועוד אחת</numerusform>
            <numerusform>בשימוש של %1 ועוד %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>‏%1 לא הגיב בזמן: ייתכן שלא הכול נכתב אליו</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>בשימוש של %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>אין עדיין תשובה</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>עונה</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>לא נמצא</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>גרסה</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>רישיון</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>אתר</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>מבוסס על</translation>
    </message>
    <message>
        <source>System</source>
        <translation>מערכת</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>שירות הכוננים</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>רשימה זו אינה שלמה: לא ניתן לקרוא את התמונה של %1.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>מתבצע חיפוש כוננים</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>שירות הכוננים עדיין לא ענה.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>אף שירות כוננים אינו עונה</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>בלעדיו לא ניתן לראות כוננים. הרשימה תתמלא ברגע שיפעל.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>אין כאן מחיצות</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>יש לחבר כונן כדי לראות את המחיצות שלו.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>אין כאן מחיצת מערכת EFI</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>יש לחבר כונן שיש בו מחיצה כזו, או לסמן „הצגת הכול”.</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>לא נמצא: %1</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>אין לך הרשאה לקרוא את %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>לא ניתן להפעיל מנהל קבצים עבור %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>מעוגנת</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>לא מעוגנת</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>לא ניתן לשמור את השינויים בעת היציאה. לצאת בכל זאת?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>יציאה כעת תגרום לאובדן כל השינויים שנעשו מאז השמירה המוצלחת האחרונה</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>לצאת בכל זאת</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>התוכנה Keldra כבר פועלת, אך אינה עונה. יש לסיים את התהליך %1 ולהפעיל את Keldra שוב.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>מגש המערכת</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>מערכת החלונות</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>שולחן עבודה</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>שולחן העבודה GNOME אינו מציג סמלי מגש בעצמו. יש להתקין ולהפעיל את ההרחבה „AppIndicator and KStatusNotifierItem Support” כדי לראות את הסמל של Keldra. עד אז, הפעלה נוספת של Keldra פותחת חלון זה.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>אף לוח אינו מציג כאן סמלי מגש. יש להוסיף מגש מערכת ללוח כדי לראות את הסמל של Keldra. עד אז, הפעלה נוספת של Keldra פותחת חלון זה.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>על אודות Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>מחיצות מערכת EFI, במרחק לחיצה</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>ה&amp;עתקה</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>העתקת הכול כטקסט, לצורך דיווח על תקלה</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;סגירה</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>עיגון: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>ניתוק: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 מ״ש</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>מעוגנת ב־%1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>כוננים ומחיצות</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>שם</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>מדיה</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>כרך</translation>
    </message>
    <message>
        <source>State</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>תשובות</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>מחובר</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>מנותק</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>מחשב</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>כיצד השירות עונה לבקשות עבור המחיצה</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>כרך, על ידי תוכנית אחרת</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>כונן ושירות הכוננים</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>עיגון</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>ניתוק</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>שם הכרך</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>שינוי שם</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>תקלה</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>השהיה</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> מ״ש</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>ניתוק הכונן</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>חיבור מחדש</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>עדיין לא ענה</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>עונה</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>נעדר</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>שירות הכוננים</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>פתיחת Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>מחיצות</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>הצגת הכול</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>ניתוק בכפייה</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>הפעלה בכניסה</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>מצב</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>מידע</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>אתר</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>Working</source>
        <translation>בביצוע</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>מחשב מדומה</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>של מערכת החלונות</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>אין עדיין</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>כמבוקש</translation>
    </message>
    <message>
        <source>none</source>
        <translation>אין</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>הכונן נעלם לפני</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>הכונן נעלם במהלך</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>הכונן נעלם אחרי</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>השירות קורס</translation>
    </message>
</context>
</TS>
