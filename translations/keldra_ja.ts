<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AppDelegate</name>
    <message>
        <source>None of your own programs is seen to use it</source>
        <translation>自分のプログラムで使用中のものは見当たりません</translation>
    </message>
    <message numerus="yes">
        <source>In use by %1 and %n more</source>
        <translation>
            <numerusform>%1 ほか %n 件が使用中</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 did not answer in time: not everything may have been written to it</source>
        <translation>%1 から時間内に応答がありませんでした。すべて書き込まれていない可能性があります</translation>
    </message>
    <message>
        <source>In use by %1</source>
        <translation>%1 が使用中</translation>
    </message>
    <message>
        <source>no answer yet</source>
        <translation>まだ応答がありません</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>応答しています</translation>
    </message>
    <message>
        <source>not there</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>Stands on</source>
        <translation>使用ライブラリ</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>ディスクサービス</translation>
    </message>
    <message>
        <source>This list is not complete: the picture of %1 cannot be read.</source>
        <translation>この一覧は完全ではありません: %1 の画像を読み込めません。</translation>
    </message>
    <message>
        <source>Looking for disks</source>
        <translation>ディスクを検索中</translation>
    </message>
    <message>
        <source>The disk service has not answered yet.</source>
        <translation>ディスクサービスからまだ応答がありません。</translation>
    </message>
    <message>
        <source>No disk service answers</source>
        <translation>ディスクサービスが応答しません</translation>
    </message>
    <message>
        <source>Disks cannot be seen without it. The list fills as soon as it runs.</source>
        <translation>これがないとディスクは表示されません。起動すると一覧に表示されます。</translation>
    </message>
    <message>
        <source>No partition here</source>
        <translation>パーティションがありません</translation>
    </message>
    <message>
        <source>Attach a disk to see its partitions.</source>
        <translation>ディスクを接続するとパーティションが表示されます。</translation>
    </message>
    <message>
        <source>No EFI System Partition here</source>
        <translation>EFI システムパーティションがありません</translation>
    </message>
    <message>
        <source>Attach a disk that has one, or tick Show all.</source>
        <translation>これを含むディスクを接続するか、「すべて表示」にチェックを入れてください。</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1 が見つかりません</translation>
    </message>
    <message>
        <source>you may not read %1</source>
        <translation>%1 を読み取る権限がありません</translation>
    </message>
    <message>
        <source>no file manager could be started for %1</source>
        <translation>%1 を開くファイルマネージャーを起動できませんでした</translation>
    </message>
    <message>
        <source>Mounted</source>
        <translation>マウント済み</translation>
    </message>
    <message>
        <source>Not mounted</source>
        <translation>未マウント</translation>
    </message>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>終了時に変更を保存できませんでした。それでも終了しますか?</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>今終了すると、最後に正常に保存した後の変更はすべて失われます</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>それでも終了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Keldra is running already, but does not answer. End process %1 and start Keldra again.</source>
        <translation>Keldra はすでに起動していますが、応答しません。プロセス %1 を終了し、Keldra をもう一度起動してください。</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>システムトレイ</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>ウィンドウシステム</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>GNOME shows no tray icons by itself. Install and switch on the extension “AppIndicator and KStatusNotifierItem Support” to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>GNOME はそのままではトレイアイコンを表示しません。Keldra のアイコンを表示するには、拡張機能「AppIndicator and KStatusNotifierItem Support」をインストールして有効にしてください。それまでは、Keldra をもう一度起動するとこのウィンドウが開きます。</translation>
    </message>
    <message>
        <source>No panel here shows tray icons. Add a tray, or “status notifier”, to a panel to see Keldra&apos;s. Until then, start Keldra once more to open this window.</source>
        <translation>ここではトレイアイコンを表示するパネルがありません。Keldra のアイコンを表示するには、パネルにシステムトレイを追加してください。それまでは、Keldra をもう一度起動するとこのウィンドウが開きます。</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>About Keldra</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>EFI System Partitions, one click away</source>
        <translation>EFI システムパーティションをワンクリックで</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copies all of it as text, for a report of a fault</source>
        <translation>不具合の報告用に、すべてをテキストとしてコピーします</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>閉じる(&amp;L)</translation>
    </message>
</context>
<context>
    <name>MachineTree</name>
    <message>
        <source>mount: </source>
        <translation>マウント: </translation>
    </message>
    <message>
        <source>unmount: </source>
        <translation>アンマウント: </translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ミリ秒</translation>
    </message>
    <message>
        <source>mounted at %1</source>
        <translation>%1 にマウント済み</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>ディスクとパーティション</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>応答</translation>
    </message>
    <message>
        <source>plugged</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>pulled</source>
        <translation>取り外し済み</translation>
    </message>
</context>
<context>
    <name>MachineWindow</name>
    <message>
        <source>Machine</source>
        <translation>マシン</translation>
    </message>
    <message>
        <source>How the service answers requests for the partition</source>
        <translation>パーティションへの要求に対するサービスの応答</translation>
    </message>
    <message>
        <source>Volume, by another program</source>
        <translation>ボリューム (別のプログラムによる)</translation>
    </message>
    <message>
        <source>Disk and disk service</source>
        <translation>ディスクとディスクサービス</translation>
    </message>
    <message>
        <source>Mount</source>
        <translation>マウント</translation>
    </message>
    <message>
        <source>Unmount</source>
        <translation>アンマウント</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>ボリューム名</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Mishap</source>
        <translation>事故</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ミリ秒</translation>
    </message>
    <message>
        <source>Pull</source>
        <translation>取り外す</translation>
    </message>
    <message>
        <source>Plug back</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>has not answered yet</source>
        <translation>まだ応答していません</translation>
    </message>
    <message>
        <source>answers</source>
        <translation>応答しています</translation>
    </message>
    <message>
        <source>is absent</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>Disk service</source>
        <translation>ディスクサービス</translation>
    </message>
</context>
<context>
    <name>MainInterface</name>
    <message>
        <source>Open Keldra</source>
        <translation>Keldra を開く</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>パーティション</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Force unmount</source>
        <translation>強制アンマウント</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>ログイン時に起動</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>ウェブサイト</translation>
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
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>SimulatedPlatform</name>
    <message>
        <source>a simulated machine</source>
        <translation>シミュレートされたマシン</translation>
    </message>
</context>
<context>
    <name>TrayItem</name>
    <message>
        <source>the window system&apos;s</source>
        <translation>ウィンドウシステムのもの</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>まだありません</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>as asked</source>
        <translation>要求どおり</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>disk vanishes before</source>
        <translation>事前にディスクが消える</translation>
    </message>
    <message>
        <source>disk vanishes during</source>
        <translation>途中でディスクが消える</translation>
    </message>
    <message>
        <source>disk vanishes after</source>
        <translation>事後にディスクが消える</translation>
    </message>
    <message>
        <source>service dies</source>
        <translation>サービスが落ちる</translation>
    </message>
</context>
</TS>
