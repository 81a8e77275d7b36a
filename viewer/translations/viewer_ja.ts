<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>Connect to Camera</source>
        <translation>カメラに接続</translation>
    </message>
    <message>
        <source>Reachable cameras</source>
        <translation>接続可能なカメラ</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>接続(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>再検索(&amp;R)</translation>
    </message>
    <message>
        <source>%1 %2 (%3), %4</source>
        <translation>%1 %2 (%3)、%4</translation>
    </message>
    <message>
        <source>No camera answers. Check its power, its cable and the network interface, then rescan.</source>
        <translation>応答するカメラがありません。電源、ケーブル、ネットワーク インターフェイスを確認してから再検索してください。</translation>
    </message>
    <message>
        <source>%1, available</source>
        <translation>%1、使用可能</translation>
    </message>
    <message>
        <source>%1, in use by another program, opens read-only</source>
        <translation>%1、別のプログラムが使用中 (読み取り専用で開きます)</translation>
    </message>
    <message>
        <source>%1, in use by a program at %2, opens read-only</source>
        <translation>%1、%2 のプログラムが使用中 (読み取り専用で開きます)</translation>
    </message>
    <message>
        <source>%1, held by another program for itself</source>
        <translation>%1、別のプログラムが占有中</translation>
    </message>
    <message>
        <source>%1, not in a subnet of this computer</source>
        <translation>%1、このコンピューターのサブネット外</translation>
    </message>
    <message>
        <source>%1, does not answer</source>
        <translation>%1、応答なし</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>検索しています…</translation>
    </message>
    <message>
        <source>Waiting until the opening of a camera has ended…</source>
        <translation>カメラを開く処理が終わるのを待っています…</translation>
    </message>
</context>
<context>
    <name>ColoursMenu</name>
    <message>
        <source>C&amp;olours</source>
        <translation>配色(&amp;O)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>システムに合わせる(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
</context>
<context>
    <name>DescriptionPane</name>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>ブール値</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>浮動小数点数</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>列挙</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリー</translation>
    </message>
    <message>
        <source>Not implemented</source>
        <translation>未実装</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>読み書き可能</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>書き込み専用</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>使用不可</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 ～ %2%3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>増分</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>アクセス</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>可視性</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Description of the current feature</source>
        <translation>現在のパラメーターの説明</translation>
    </message>
</context>
<context>
    <name>IpConfiguration</name>
    <message>
        <source>The reason is not known.</source>
        <translation>理由は不明です。</translation>
    </message>
    <message>
        <source>This camera has no features for an IP configuration</source>
        <translation>このカメラには IP 設定用のパラメーターがありません</translation>
    </message>
    <message>
        <source>The camera does not allow its IP configuration to be changed now</source>
        <translation>現在、このカメラの IP 設定は変更できません</translation>
    </message>
    <message>
        <source>The IP configuration was not changed. %1</source>
        <translation>IP 設定は変更されませんでした。%1</translation>
    </message>
</context>
<context>
    <name>Levels</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>ビギナー(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>エキスパート(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>グル(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;All Features</source>
        <translation>すべてのパラメーター(&amp;A)</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>非表示</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Features</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Copy &amp;Tree to Clipboard</source>
        <translation>ツリーをクリップボードにコピー(&amp;T)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Description File…</source>
        <translation>記述ファイルを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Connect to Camera…</source>
        <translation>カメラに接続(&amp;C)…</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>カメラを閉じる(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>パネル(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Monitor Mode</source>
        <translation>モニター モード(&amp;M)</translation>
    </message>
    <message>
        <source>Polling re-reads all features, not only the volatile ones</source>
        <translation>ポーリングで、変動するものだけでなくすべてのパラメーターを読み直します</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;IP Configuration…</source>
        <translation>IP 設定(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show All Messages Again</source>
        <translation>すべてのメッセージを再び表示(&amp;S)</translation>
    </message>
    <message>
        <source>Brings back the messages that were silenced</source>
        <translation>非表示にしたメッセージを再び表示します</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>バージョン情報(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>レベル(&amp;L)</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 – Zelto Viewer</source>
        <translation>%1 – Zelto Viewer</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>カメラなし</translation>
    </message>
    <message>
        <source>Zelto Viewer</source>
        <translation>Zelto Viewer</translation>
    </message>
    <message>
        <source>Open Description File</source>
        <translation>記述ファイルを開く</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>カメラ記述 (*.xml *.zip);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Close Camera</source>
        <translation>カメラを閉じる</translation>
    </message>
    <message>
        <source>Close the camera %1?
Changes that were not saved to one of its user sets last until it is switched off.</source>
        <translation>カメラ %1 を閉じますか?
ユーザー セットに保存されていない変更は、カメラの電源を切ると失われます。</translation>
    </message>
    <message>
        <source>IP Configuration</source>
        <translation>IP 設定</translation>
    </message>
    <message>
        <source>The new IP configuration takes effect after the camera restarts.</source>
        <translation>新しい IP 設定は、カメラの再起動後に有効になります。</translation>
    </message>
    <message>
        <source>Address, mask and gateway that the camera starts with</source>
        <translation>カメラの起動時に使用されるアドレス、マスク、ゲートウェイ</translation>
    </message>
    <message>
        <source>No camera is open</source>
        <translation>カメラが開かれていません</translation>
    </message>
    <message>
        <source>The camera was lost</source>
        <translation>カメラとの接続が失われました</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n 件 (うち %1 件は上位のレベル)</numerusform>
        </translation>
    </message>
    <message>
        <source>All messages are shown again.</source>
        <translation>すべてのメッセージが再び表示されます。</translation>
    </message>
    <message>
        <source>About Zelto Viewer</source>
        <translation>Zelto Viewer について</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Shows a camera's features in a tree, for GigE Vision and USB3 Vision cameras and for any GenICam camera description file.</source>
        <translation>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;GigE Vision カメラ、USB3 Vision カメラ、および GenICam カメラ記述ファイルのパラメーターをツリーに表示します。</translation>
    </message>
    <message>
        <source>No camera is open.
Open a description file or connect to a camera (menu File).</source>
        <translation>カメラが開かれていません。
記述ファイルを開くか、カメラに接続してください (「ファイル」メニュー)。</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>再接続(&amp;R)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>The tree was copied to the clipboard.</source>
        <translation>ツリーをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>The open camera has no such feature.</source>
        <translation>開いているカメラにこのパラメーターはありません。</translation>
    </message>
    <message>
        <source>&amp;Take Control</source>
        <translation>制御を取得(&amp;T)</translation>
    </message>
    <message>
        <source>Take Control</source>
        <translation>制御を取得</translation>
    </message>
    <message>
        <source>The camera is open read-only. No program controls it now.</source>
        <translation>カメラは読み取り専用で開かれています。現在このカメラを制御しているプログラムはありません。</translation>
    </message>
    <message>
        <source>The camera is held by another program and open read-only.</source>
        <translation>カメラは別のプログラムが使用しているため、読み取り専用で開かれています。</translation>
    </message>
    <message>
        <source>The camera is held by another program at %1 and open read-only.</source>
        <translation>カメラは %1 の別のプログラムが使用しているため、読み取り専用で開かれています。</translation>
    </message>
    <message>
        <source>Taking control of the camera…</source>
        <translation>カメラの制御を取得しています…</translation>
    </message>
    <message>
        <source>The control of the camera was not taken: %1</source>
        <translation>カメラの制御を取得できませんでした: %1</translation>
    </message>
    <message>
        <source>Allows the camera's features to be changed</source>
        <translation>カメラのパラメーターを変更できるようにします</translation>
    </message>
    <message>
        <source>Only of a camera that is open read-only and free</source>
        <translation>読み取り専用で開かれ、制御されていないカメラでのみ使用できます</translation>
    </message>
    <message>
        <source>Open R&amp;ecent</source>
        <translation>最近使ったものを開く(&amp;E)</translation>
    </message>
    <message>
        <source>How many features are shown</source>
        <translation>表示するパラメーターの範囲</translation>
    </message>
    <message>
        <source>Level: %1</source>
        <translation>レベル: %1</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>カメラ %1</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>内蔵のシミュレーション カメラ</translation>
    </message>
    <message>
        <source>The opening was cancelled.</source>
        <translation>開く処理をキャンセルしました。</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Zelto Viewer</source>
        <translation>%1[*] – %2 – Zelto Viewer</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>このパラメーターは現在のレベルでは表示されません</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>カメラの設定</translation>
    </message>
    <message>
        <source>Values of the camera differ from the settings file %1.
Close without saving them?</source>
        <translation>カメラの値が設定ファイル %1 と異なります。
保存せずに閉じますか?</translation>
    </message>
    <message>
        <source>The camera was sending images when it was lost.</source>
        <translation>カメラとの接続が失われたとき、カメラは画像を送信していました。</translation>
    </message>
    <message>
        <source>Start Images</source>
        <translation>画像を開始</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>(以前のメッセージ %n 件)</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>メッセージ: %1</translation>
    </message>
</context>
<context>
    <name>VisitedFeaturesPanel</name>
    <message>
        <source>Visited Features</source>
        <translation>表示したパラメーター</translation>
    </message>
    <message>
        <source>The features you visited last; a click goes back</source>
        <translation>最近表示したパラメーター。クリックするとそこに戻ります</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>このパラメーターは現在のレベルでは表示されません</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>Value Editors – Zelto Viewer</source>
        <translation>値エディター – Zelto Viewer</translation>
    </message>
</context>
<context>
    <name>CommandQuestion</name>
    <message>
        <source>Restart the camera?
The connection breaks, and changes that were not saved to one of its user sets are lost.</source>
        <translation>カメラを再起動しますか?
接続が切断され、ユーザー セットに保存されていない変更は失われます。</translation>
    </message>
    <message>
        <source>Reset the camera to its factory settings?
All settings are lost, those saved to its user sets too.</source>
        <translation>カメラを工場出荷時の設定に戻しますか?
ユーザー セットに保存されたものも含め、すべての設定が失われます。</translation>
    </message>
    <message>
        <source>Load the user set "%1"?
It overwrites the present settings.</source>
        <translation>ユーザー セット「%1」を読み込みますか?
現在の設定は上書きされます。</translation>
    </message>
    <message>
        <source>Save the present settings to the user set "%1"?
They overwrite what is saved there.</source>
        <translation>現在の設定をユーザー セット「%1」に保存しますか?
保存済みの内容は上書きされます。</translation>
    </message>
    <message>
        <source>Write to the camera's file "%1"?
What the file holds is overwritten.</source>
        <translation>カメラのファイル「%1」に書き込みますか?
ファイルの内容は上書きされます。</translation>
    </message>
    <message>
        <source>Delete the camera's file "%1"?
What the file holds is lost.</source>
        <translation>カメラのファイル「%1」を削除しますか?
ファイルの内容は失われます。</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>&amp;Expand All</source>
        <translation>すべて展開(&amp;E)</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>すべて折りたたむ(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>名前をコピー(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>値をコピー(&amp;V)</translation>
    </message>
    <message>
        <source>Copy &amp;Full Name</source>
        <translation>完全な名前をコピー(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Go To Feature</source>
        <translation>パラメーターへ移動(&amp;G)</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>このパラメーターは現在のレベルでは表示されません</translation>
    </message>
</context>
<context>
    <name>RecentSources</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>一覧をクリア(&amp;C)</translation>
    </message>
    <message>
        <source>The file does not exist at present</source>
        <translation>ファイルは現在存在しません</translation>
    </message>
</context>
<context>
    <name>OpeningPage</name>
    <message>
        <source>Opening %1</source>
        <translation>%1 を開いています</translation>
    </message>
    <message>
        <source>Waiting until the search for another camera, or its opening, has ended…</source>
        <translation>別のカメラの検索または開く処理が終わるのを待っています…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続しています…</translation>
    </message>
    <message>
        <source>Reading the description…</source>
        <translation>記述を読み取っています…</translation>
    </message>
    <message>
        <source>Reading the features: %1 of %2</source>
        <translation>パラメーターを読み取っています: %1/%2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save Settings…</source>
        <translation>設定を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Load Settings…</source>
        <translation>設定を読み込む(&amp;L)…</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Saves all values that can be changed to a text file</source>
        <translation>変更可能なすべての値をテキスト ファイルに保存します</translation>
    </message>
    <message>
        <source>Brings the values in a file to the camera</source>
        <translation>ファイルの値をカメラに設定します</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>設定を読み込む</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>カメラの設定 (*.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: 設定が含まれていません</translation>
    </message>
    <message>
        <source>These are settings of the model %1, and the open camera is a %2.
Load them all the same?</source>
        <translation>これはモデル %1 の設定ですが、開いているカメラは %2 です。
それでも読み込みますか?</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>読み込む(&amp;L)</translation>
    </message>
    <message>
        <source>No settings were saved.</source>
        <translation>設定は保存されませんでした。</translation>
    </message>
    <message>
        <source>The settings were saved, but for some that cannot be read.</source>
        <translation>読み取れないものを除き、設定を保存しました。</translation>
    </message>
    <message>
        <source>The settings were saved to %1.</source>
        <translation>設定を %1 に保存しました。</translation>
    </message>
    <message>
        <source>What was before is back. %1</source>
        <translation>以前の状態に戻しました。%1</translation>
    </message>
    <message>
        <source>Settings loaded. %1</source>
        <translation>設定を読み込みました。%1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>no feature %1</source>
        <translation>パラメーター %1 はありません</translation>
    </message>
    <message>
        <source>no feature %1; did you mean %2?</source>
        <translation>パラメーター %1 はありません。%2 ですか?</translation>
    </message>
    <message>
        <source>%1: this is no feature that has a value</source>
        <translation>%1: 値を持つパラメーターではありません</translation>
    </message>
    <message>
        <source>%1: it cannot be read now</source>
        <translation>%1: 今は読み取れません</translation>
    </message>
    <message>
        <source>%1: the camera does not answer</source>
        <translation>%1: カメラが応答しません</translation>
    </message>
    <message>
        <source>%1: this is no command</source>
        <translation>%1: コマンドではありません</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>カメラが応答しません</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>中断されました</translation>
    </message>
    <message>
        <source>standard input: %1</source>
        <translation>標準入力: %1</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1: 設定が含まれていません</translation>
    </message>
    <message>
        <source>%1: these are settings of %2, and this is %3; --force loads them all the same</source>
        <translation>%1: %2 の設定ですが、カメラは %3 です。--force を指定すると読み込みます</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten</source>
        <translation>%1 は既に存在し、上書きはされません</translation>
    </message>
    <message>
        <source>this camera delivers no images</source>
        <translation>このカメラは画像を出力しません</translation>
    </message>
    <message>
        <source>no image came</source>
        <translation>画像が届きませんでした</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>Opening %1…</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Compare &amp;With</source>
        <translation>比較(&amp;W)</translation>
    </message>
    <message>
        <source>A &amp;File…</source>
        <translation>ファイル(&amp;F)…</translation>
    </message>
    <message>
        <source>The State When &amp;Opened</source>
        <translation>開いたときの状態(&amp;O)</translation>
    </message>
    <message>
        <source>Another &amp;Description…</source>
        <translation>別の記述(&amp;D)…</translation>
    </message>
    <message>
        <source>Another &amp;Camera…</source>
        <translation>別のカメラ(&amp;C)…</translation>
    </message>
    <message>
        <source>Compare With a Settings File</source>
        <translation>設定ファイルと比較</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>カメラの設定 (*.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>the state when opened</source>
        <translation>開いたときの状態</translation>
    </message>
    <message>
        <source>Compare With Another Description</source>
        <translation>別の記述と比較</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>カメラ記述 (*.xml *.zip);;すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>元に戻す(&amp;U): %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>やり直す(&amp;R): %1</translation>
    </message>
    <message>
        <source>what was before</source>
        <translation>以前の状態</translation>
    </message>
</context>
<context>
    <name>WatchModel</name>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
</context>
<context>
    <name>WatchPlot</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>%1 前</translation>
    </message>
    <message>
        <source>now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Plot of the watched features</source>
        <translation>監視中のパラメーターのグラフ</translation>
    </message>
    <message>
        <source>Make a feature current in the tree, and add it.</source>
        <translation>ツリーでパラメーターを選択し、追加してください。</translation>
    </message>
</context>
<context>
    <name>WatchPanel</name>
    <message>
        <source>&amp;Add</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Re&amp;start</source>
        <translation>最初から(&amp;S)</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>その他(&amp;O)</translation>
    </message>
    <message>
        <source>Save as &amp;CSV…</source>
        <translation>CSV で保存(&amp;C)…</translation>
    </message>
    <message>
        <source>Save as P&amp;NG…</source>
        <translation>PNG で保存(&amp;N)…</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>Values of chosen features over time</source>
        <translation>選択したパラメーターの値の推移</translation>
    </message>
    <message>
        <source>Forgets the values so far</source>
        <translation>これまでの値を消去します</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Last minute</source>
        <translation>直近 1 分</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>直近 10 分</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>直近 1 時間</translation>
    </message>
    <message>
        <source>Time that the plot shows</source>
        <translation>グラフに表示する時間</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, %1</source>
        <translation>ツリーの現在のパラメーター %1 を監視します</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, if it is a number or a Boolean</source>
        <translation>ツリーの現在のパラメーターが数値またはブール値の場合に監視します</translation>
    </message>
    <message>
        <source>Save Watched Values</source>
        <translation>監視した値を保存</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>コンマ区切りの値 (*.csv)</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>グラフを保存</translation>
    </message>
    <message>
        <source>Images (*.png)</source>
        <translation>画像 (*.png)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>LanguagesMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>言語(&amp;G)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>システムに合わせる(&amp;S)</translation>
    </message>
</context>
<context>
    <name>FrameFile</name>
    <message>
        <source>The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose name ends in .raw.</source>
        <translation>ピクセル形式 %1 はこの種類のファイルに保存できません。名前が .raw で終わるファイルにすれば、バイト列のまま保存できます。</translation>
    </message>
    <message>
        <source>There is nothing in the image that could be saved.</source>
        <translation>画像には保存できるものがありません。</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten.</source>
        <translation>%1 は既に存在し、上書きはされません。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>FrameRecorder</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>%1 にフォルダーを作成できません。</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>Black: %1 (%2 %)   Saturated: %3 (%4 %)</source>
        <translation>黒: %1 (%2%)   飽和: %3 (%4%)</translation>
    </message>
</context>
<context>
    <name>ImagePane</name>
    <message>
        <source>%1mean %2, deviation %3</source>
        <translation>%1平均 %2、標準偏差 %3</translation>
    </message>
    <message>
        <source>sharpness %1</source>
        <translation>鮮鋭度 %1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>St&amp;art Images</source>
        <translation>画像を開始(&amp;A)</translation>
    </message>
    <message>
        <source>Shows what the camera sees</source>
        <translation>カメラの映像を表示します</translation>
    </message>
    <message>
        <source>Si&amp;ngle Image</source>
        <translation>画像を 1 枚取得(&amp;N)</translation>
    </message>
    <message>
        <source>Takes one image</source>
        <translation>画像を 1 枚取得します</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体を表示</translation>
    </message>
    <message>
        <source>Shows all of the image</source>
        <translation>画像全体を表示します</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Shows each pixel as one of the screen</source>
        <translation>画像の 1 ピクセルを画面の 1 ピクセルで表示します</translation>
    </message>
    <message>
        <source>Crosshair</source>
        <translation>十字線</translation>
    </message>
    <message>
        <source>Marks the middle of the image</source>
        <translation>画像の中心を示します</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Divides the image into thirds</source>
        <translation>画像を 3 分割する線を表示します</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Dragging moves the image</source>
        <translation>ドラッグで画像を移動します</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>四角形</translation>
    </message>
    <message>
        <source>Dragging draws a rectangle, of which mean, deviation and sharpness are shown</source>
        <translation>ドラッグで四角形を描き、その平均、標準偏差、鮮鋭度を表示します</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>線</translation>
    </message>
    <message>
        <source>Dragging draws a line, along which the values are shown</source>
        <translation>ドラッグで線を描き、線に沿った値を表示します</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>Shows the histogram, gamma and contrast</source>
        <translation>ヒストグラム、ガンマ、コントラストを表示します</translation>
    </message>
    <message>
        <source>Mark Extremes</source>
        <translation>極値を強調</translation>
    </message>
    <message>
        <source>Marks saturated pixels red and black ones blue</source>
        <translation>飽和したピクセルを赤、黒いピクセルを青で示します</translation>
    </message>
    <message>
        <source>&amp;Full Frame</source>
        <translation>フル フレーム(&amp;F)</translation>
    </message>
    <message>
        <source>Makes all of the sensor the region of interest; dragging in the image with Ctrl makes it what is drawn</source>
        <translation>センサー全体を関心領域にします。Ctrl キーを押しながら画像内をドラッグすると、描いた範囲が関心領域になります</translation>
    </message>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>対数(&amp;L)</translation>
    </message>
    <message>
        <source>Shows rare values as well</source>
        <translation>まれな値も見えるように表示します</translation>
    </message>
    <message>
        <source>Statistics of the rectangle</source>
        <translation>四角形の統計</translation>
    </message>
    <message>
        <source>Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the mean</source>
        <translation>描いた四角形についての値です。鮮鋭度: 隣り合うピクセルの差 (平均に対する百分率)</translation>
    </message>
    <message>
        <source>Pixel under the cursor</source>
        <translation>カーソル位置のピクセル</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>カメラが開かれていません。</translation>
    </message>
    <message>
        <source>This camera delivers no images.</source>
        <translation>このカメラは画像を出力しません。</translation>
    </message>
    <message>
        <source>Start the images with F9.</source>
        <translation>F9 キーで画像を開始します。</translation>
    </message>
    <message>
        <source>St&amp;op Images</source>
        <translation>画像を停止(&amp;O)</translation>
    </message>
    <message>
        <source>%1 × %2, %3, frame %4, %5 %</source>
        <translation>%1 × %2、%3、フレーム %4、%5%</translation>
    </message>
    <message>
        <source>x %1, y %2:  %3</source>
        <translation>x %1、y %2:  %3</translation>
    </message>
</context>
<context>
    <name>ImageSaving</name>
    <message>
        <source>Save I&amp;mage…</source>
        <translation>画像を保存(&amp;M)…</translation>
    </message>
    <message>
        <source>Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM</source>
        <translation>画像を保存します。表示内容は PNG、生の値は TIFF、PGM、PPM になります</translation>
    </message>
    <message>
        <source>Keeps the next images as files, with a table of their numbers and times</source>
        <translation>以降の画像を、番号と時刻の一覧表とともにファイルに保存します</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>記録を停止(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record Images…</source>
        <translation>画像を記録(&amp;R)…</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm *.ppm);;Bytes (*.raw);;All files (*)</source>
        <translation>表示どおり (*.png);;生の値 (*.tif *.tiff);;生の値 (*.pgm *.ppm);;バイト列 (*.raw);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The image was saved to %1.</source>
        <translation>画像を %1 に保存しました。</translation>
    </message>
    <message>
        <source>Images recorded: %1 of %2</source>
        <translation>記録した画像: %1/%2</translation>
    </message>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>%n 枚の画像で記録が終了しました。%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>ディスクが遅すぎたため、%n 枚の画像が省略されました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>%n 枚の画像を %1 に記録しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>Camera image</source>
        <translation>カメラの画像</translation>
    </message>
    <message>
        <source>An image of %1 × %2 pixels cannot be shown.</source>
        <translation>%1 × %2 ピクセルの画像は表示できません。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown. Its bytes can be saved.</source>
        <translation>ピクセル形式 %1 は表示できません。バイト列として保存できます。</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>Ga&amp;mma</source>
        <translation>ガンマ(&amp;M)</translation>
    </message>
    <message>
        <source>Makes dark parts of what is shown brighter</source>
        <translation>表示の暗い部分を明るくします</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>黒(&amp;K)</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown black</source>
        <translation>黒で表示する値 (最大値に対する割合)</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>白(&amp;W)</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown white</source>
        <translation>白で表示する値 (最大値に対する割合)</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Shows values as they are: gamma and contrast change nothing of the camera</source>
        <translation>値をそのまま表示します。ガンマとコントラストはカメラには影響しません</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Line profile</source>
        <translation>ライン プロファイル</translation>
    </message>
    <message>
        <source>The raw values along the drawn line</source>
        <translation>描いた線に沿った生の値</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record Images</source>
        <translation>画像を記録</translation>
    </message>
    <message>
        <source>The images get a new folder in this one; nothing is overwritten</source>
        <translation>このフォルダー内の新しいフォルダーに画像を保存します。上書きはされません</translation>
    </message>
    <message>
        <source>TIFF, raw values</source>
        <translation>TIFF、生の値</translation>
    </message>
    <message>
        <source>PGM or PPM, raw values</source>
        <translation>PGM または PPM、生の値</translation>
    </message>
    <message>
        <source>PNG, as shown with 8 bits</source>
        <translation>PNG、表示どおり 8 ビット</translation>
    </message>
    <message>
        <source>Bytes as they came</source>
        <translation>受信したままのバイト列</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>記録(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Images:</source>
        <translation>画像(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>種類(&amp;K):</translation>
    </message>
    <message>
        <source>Folder for Images</source>
        <translation>画像用のフォルダー</translation>
    </message>
</context>
<context>
    <name>RegionOfInterest</name>
    <message>
        <source>region of interest</source>
        <translation>関心領域</translation>
    </message>
    <message>
        <source>The camera did not take the whole region. %1</source>
        <translation>カメラは領域の一部しか受け付けませんでした。%1</translation>
    </message>
</context>
<context>
    <name>StreamControl</name>
    <message>
        <source>%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped</source>
        <translation>%1 フレーム/秒、%2 MB/秒、完全 %3、不完全 %4、破棄 %5</translation>
    </message>
</context>
</TS>
