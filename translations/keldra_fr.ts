<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Aucun de vos programmes ne semble l’utiliser</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>Utilisée par %1 et %n autre</numerusform>
            <numerusform>Utilisée par %1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 n’a pas répondu à temps&#xa0;: tout n’y a peut-être pas été écrit</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>Utilisée par %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>pas encore de réponse</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>répond</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>S’appuie sur</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Service des disques</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Cette liste est incomplète&#xa0;: l’image de %1 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Recherche des disques</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>Le service des disques n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Aucun service des disques ne répond</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Sans lui, aucun disque n’est visible. La liste se remplit dès qu’il fonctionne.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Aucune partition ici</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Branchez un disque pour voir ses partitions.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Aucune partition système EFI ici</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Branchez un disque qui en contient une, ou cochez «&#xa0;Tout afficher&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 est introuvable</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>vous ne pouvez pas lire %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>aucun gestionnaire de fichiers n’a pu être lancé pour %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Montée</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Non montée</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Impossible d’enregistrer les modifications en quittant. Quitter quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Quitter maintenant fera perdre toutes les modifications faites depuis le dernier enregistrement réussi</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra est déjà en cours d’exécution, mais ne répond pas. Terminez le processus %1 et relancez Keldra.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtrage</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Environnement</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME n’affiche pas de lui-même les icônes de notification. Installez et activez l’extension «&#xa0;AppIndicator and KStatusNotifierItem Support&#xa0;» pour voir celle de Keldra. D’ici là, démarrez Keldra encore une fois pour ouvrir cette fenêtre.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Aucun tableau de bord n’affiche ici les icônes de notification. Ajoutez une zone de notification à un tableau de bord pour voir celle de Keldra. D’ici là, démarrez Keldra encore une fois pour ouvrir cette fenêtre.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>À propos de Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Les partitions système EFI à portée de clic</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Copie le tout sous forme de texte, pour un rapport d’anomalie</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>monter&#xa0;: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>démonter&#xa0;: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>montée sur %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Disques et partitions</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Réponses</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>branché</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>débranché</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Réponses du service aux demandes pour la partition</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Volume, par un autre programme</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Disque et service des disques</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Démonter</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nom du volume</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Incident</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Débrancher</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>Rebrancher</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>n’a pas encore répondu</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>répond</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>est absent</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Service des disques</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Ouvrir Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitions</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Forcer le démontage</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Lancer à la connexion</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
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
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>une machine simulée</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>celle du système de fenêtrage</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>aucune pour l’instant</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>comme demandé</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>le disque disparaît avant</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>le disque disparaît pendant</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>le disque disparaît après</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>le service plante</translation>
    </message>
</context>
</TS>
