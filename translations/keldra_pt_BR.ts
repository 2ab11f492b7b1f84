<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>Nenhum dos seus programas parece usá-la</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>Em uso por %1 e mais %n</numerusform>
            <numerusform>Em uso por %1 e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 não respondeu a tempo: talvez nem tudo tenha sido gravado</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>Em uso por %1</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>ainda sem resposta</translation>
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
        <translation>Versão</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licença</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>Baseado em</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Serviço de discos</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>Esta lista não está completa: não é possível ler a imagem de %1.</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>Procurando discos</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>O serviço de discos ainda não respondeu.</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>Nenhum serviço de discos responde</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>Sem ele, os discos não são vistos. A lista é preenchida assim que ele estiver em execução.</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>Nenhuma partição</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>Conecte um disco para ver suas partições.</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>Nenhuma partição de sistema EFI</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>Conecte um disco que tenha uma ou marque “Mostrar tudo”.</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 não existe</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>você não tem permissão para ler %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>não foi possível iniciar um gerenciador de arquivos para %1</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>Montada</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>Não montada</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>Não foi possível salvar as alterações ao sair. Sair mesmo assim?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>Sair agora perderá todas as alterações feitas desde a última vez que foram salvas com sucesso</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>Sair mesmo assim</translation>
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
        <translation>O Keldra já está em execução, mas não responde. Encerre o processo %1 e inicie o Keldra novamente.</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja do sistema</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Sistema de janelas</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Ambiente de trabalho</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>O GNOME não mostra ícones de bandeja por si só. Instale e ative a extensão “AppIndicator and KStatusNotifierItem Support” para ver o do Keldra. Até lá, inicie o Keldra mais uma vez para abrir esta janela.</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>Nenhum painel mostra ícones de bandeja aqui. Adicione uma bandeja do sistema a um painel para ver o do Keldra. Até lá, inicie o Keldra mais uma vez para abrir esta janela.</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>Sobre o Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>Partições de sistema EFI a um clique</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>Copia tudo como texto, para relatar um problema</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
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
        <translation>montada em %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Discos e partições</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Mídia</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Respostas</translation>
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
        <translation>Máquina</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>Como o serviço responde aos pedidos para a partição</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>Volume, por outro programa</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>Disco e serviço de discos</translation>
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
        <translation>Nome do volume</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>Incidente</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Atraso</translation>
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
        <translation>ainda não respondeu</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>responde</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>está ausente</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>Serviço de discos</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Abrir o Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partições</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>Forçar desmontagem</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Iniciar com a sessão</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site</translation>
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
        <translation>Em andamento</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>uma máquina simulada</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>a do sistema de janelas</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>nenhuma ainda</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>como pedido</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>o disco some antes</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>o disco some durante</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>o disco some depois</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>o serviço falha</translation>
    </message>
</context>
</TS>
