<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>未发现您自己的程序在使用它</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>正被 %1 及另外 %n 个程序使用</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 未及时响应：可能并未写入全部数据</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>正被 %1 使用</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>尚无响应</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>有响应</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>基于</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>磁盘服务</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>此列表不完整：无法读取 %1 的图像。</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>正在查找磁盘</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>磁盘服务尚未响应。</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>没有磁盘服务响应</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>没有它就看不到磁盘。服务运行后列表会立即填充。</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>没有分区</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>连接磁盘即可查看其分区。</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>没有 EFI 系统分区</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>请连接带有此分区的磁盘，或勾选“显示全部”。</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 不存在</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>您无权读取 %1</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>无法为 %1 启动文件管理器</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>已挂载</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>未挂载</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>退出时无法保存更改。仍要退出吗？</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>现在退出将丢失上次成功保存后所做的全部更改</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>仍要退出</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra 已在运行，但没有响应。请结束进程 %1，然后重新启动 Keldra。</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>系统托盘</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>窗口系统</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面环境</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME 本身不显示托盘图标。请安装并启用扩展“AppIndicator and KStatusNotifierItem Support”以显示 Keldra 的图标。在此之前，再次启动 Keldra 即可打开此窗口。</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>这里没有面板显示托盘图标。请在面板上添加系统托盘以显示 Keldra 的图标。在此之前，再次启动 Keldra 即可打开此窗口。</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>关于 Keldra</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>EFI 系统分区，一键可达</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>将全部内容复制为文本，用于报告故障</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>挂载：</translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>卸载：</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>已挂载到 %1</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>磁盘和分区</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>介质</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>响应</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>已拔出</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>机器</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>服务如何响应对该分区的请求</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>卷（由其他程序操作）</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>磁盘和磁盘服务</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>挂载</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>卸载</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>卷名</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>意外</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> 毫秒</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>拔出</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>尚未响应</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>有响应</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>磁盘服务</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>打开 Keldra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>分区</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>强制卸载</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>登录时启动</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>RowButton</name>
    <message>
        <source>Working</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>模拟的机器</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>窗口系统自带</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>暂无</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>按请求</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>磁盘在之前消失</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>磁盘在期间消失</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>磁盘在之后消失</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>服务崩溃</translation>
    </message>
</context>
</TS>
