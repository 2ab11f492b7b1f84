<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Ninguno de sus programas parece usarla</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>En uso por %1 y %n más</numerusform>
            <numerusform>En uso por %1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 no respondió a tiempo: puede que no se haya escrito todo</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>En uso por %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>aún sin respuesta</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>responde</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>ausente</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>Basado en</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Servicio de discos</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Esta lista no está completa: no se puede leer la imagen de %1.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Buscando discos</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>El servicio de discos aún no ha respondido.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>No responde ningún servicio de discos</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Sin él no se ven los discos. La lista se llena en cuanto funcione.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>No hay particiones</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Conecte un disco para ver sus particiones.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>No hay ninguna partición del sistema EFI</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Conecte un disco que tenga una o marque «Mostrar todo».</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 no existe</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>no tiene permiso para leer %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>no se pudo iniciar un gestor de archivos para %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Montada</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>No montada</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>No se pudieron guardar los cambios al salir. ¿Salir de todos modos?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Si sale ahora, se perderán los cambios hechos desde la última vez que se guardó correctamente</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra ya está en ejecución, pero no responde. Finalice el proceso %1 e inicie Keldra de nuevo.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja del sistema</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Sistema de ventanas</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME no muestra iconos de bandeja por sí mismo. Instale y active la extensión «AppIndicator and KStatusNotifierItem Support» para ver el de Keldra. Mientras tanto, inicie Keldra otra vez para abrir esta ventana.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Ningún panel muestra aquí iconos de bandeja. Añada una bandeja del sistema a un panel para ver el de Keldra. Mientras tanto, inicie Keldra otra vez para abrir esta ventana.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>Acerca de Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Particiones del sistema EFI a un clic</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Copia todo como texto, para informar de un fallo</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>C&amp;errar</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>montar: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>desmontar: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>montada en %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Discos y particiones</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Respuestas</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>conectado</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>desconectado</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Respuesta del servicio a las peticiones para la partición</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Volumen, por otro programa</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Disco y servicio de discos</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>Montar</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>Desmontar</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nombre del volumen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Percance</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Demora</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>aún no ha respondido</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>responde</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>no está</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Servicio de discos</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Abrir Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Particiones</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Forzar desmontaje</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar con la sesión</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>Working</source>
        <translation>En curso</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>un equipo simulado</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>la del sistema de ventanas</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>ninguna todavía</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>como se pidió</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>el disco desaparece antes</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>el disco desaparece durante</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>el disco desaparece después</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>el servicio falla</translation>
    </message>
</context>
</TS>
