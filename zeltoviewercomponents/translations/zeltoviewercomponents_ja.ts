<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AddressValidator</name>
    <message>
        <source>There are blanks in the address.</source>
        <translation>アドレスに空白が含まれています。</translation>
    </message>
    <message>
        <source>There are more than four numbers.</source>
        <translation>数値が 5 つ以上あります。</translation>
    </message>
    <message>
        <source>Only digits and dots are allowed.</source>
        <translation>使用できるのは数字とピリオドだけです。</translation>
    </message>
    <message>
        <source>Write %1 without leading zeros.</source>
        <translation>%1 は先頭の 0 を付けずに入力してください。</translation>
    </message>
    <message>
        <source>%1 is larger than 255.</source>
        <translation>%1 は 255 を超えています。</translation>
    </message>
    <message>
        <source>Enter four numbers with dots between them.</source>
        <translation>ピリオドで区切った 4 つの数値を入力してください。</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1..%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>ErrorHandling</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Unexpected exception occurred</source>
        <translation>予期しない例外が発生しました</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未実装&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;使用不可&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <source>%1: "%2" has characters outside Latin-1, which this camera cannot store.</source>
        <translation>%1: 「%2」には Latin-1 以外の文字が含まれており、このカメラには保存できません。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Failed to get a feature value</source>
        <translation>パラメーターの値を取得できませんでした</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>パラメーターの値を設定できませんでした。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Failed to get the node 'Root' from the node map</source>
        <translation>ノードマップからノード「Root」を取得できませんでした</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;お気に入り&lt;/h3&gt;&lt;b&gt;このノードには、ユーザーが選択したパラメーターの一覧が含まれます&lt;/b&gt;&lt;br&gt;&lt;br&gt;パラメーターを追加するには、パラメーターを右クリックし、コンテキスト メニューから「お気に入りに追加」を選択します。ドラッグ アンド ドロップで追加することもできます。&lt;br&gt;お気に入りを右クリックしてコンテキスト メニューの項目を選択すると、一覧内で上下に移動したり、一覧から削除したりできます。</translation>
    </message>
    <message>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>下のパラメーターを右クリックして、お気に入りに追加します。</translation>
    </message>
    <message>
        <source>To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>パラメーターを追加するには、パラメーターを右クリックし、コンテキスト メニューから「お気に入りに追加」を選択します。ドラッグ アンド ドロップで追加することもできます。</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2 (うち %3 件は現在のカメラでは使用できません)</translation>
    </message>
    <message>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2 (うち %3 件は現在のカメラでは使用できません)</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No search results found.</source>
        <translation>検索結果はありません。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>Add to Favorites</source>
        <translation>お気に入りに追加</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>ポーリング</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>検索 (%1)</translation>
    </message>
    <message>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;検索結果 %1 件 (うち %2 件は上位のユーザー レベルで表示)&lt;/B&gt;</translation>
    </message>
    <message>
        <source>The camera gave no reason.</source>
        <translation>カメラから理由は通知されませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>%n 件のパラメーターが見つかりました</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1、上位のレベルにさらに %n 件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>FeatureTreeWidget</translation>
    </message>
    <message>
        <source>Show Unavailable Favorites</source>
        <translation>使用できないお気に入りを表示</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>ポーリング(&amp;O)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>パラメーター ツリーを更新します</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>パラメーター</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
</context>
<context>
    <name>HelpLink</name>
    <message>
        <source>Get help</source>
        <translation>ヘルプを見る</translation>
    </message>
    <message>
        <source>The help page could not be opened.</source>
        <translation>ヘルプ ページを開けませんでした。</translation>
    </message>
    <message>
        <source>Copy Link Location</source>
        <translation>リンクのアドレスをコピー</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>範囲: 0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1..%2</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
</context>
<context>
    <name>IpAddressWidget</name>
    <message>
        <source>IP Configuration</source>
        <translation>IP 設定</translation>
    </message>
    <message>
        <source>&amp;IP address:</source>
        <translation>IP アドレス(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Subnet mask:</source>
        <translation>サブネット マスク(&amp;S):</translation>
    </message>
    <message>
        <source>Default &amp;gateway:</source>
        <translation>デフォルト ゲートウェイ(&amp;G):</translation>
    </message>
    <message>
        <source>&amp;MAC address:</source>
        <translation>MAC アドレス(&amp;M):</translation>
    </message>
    <message>
        <source>Prefix length %1</source>
        <translation>プレフィックス長 %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <source>&amp;Don't show this dialog again</source>
        <translation>今後このダイアログを表示しない(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QIpAddressValidator</name>
    <message>
        <source>This is the broadcast address, no device can have it.</source>
        <translation>これはブロードキャスト アドレスです。機器に割り当てることはできません。</translation>
    </message>
    <message>
        <source>Addresses that begin with 0 stand for no device.</source>
        <translation>0 で始まるアドレスは、どの機器も表しません。</translation>
    </message>
    <message>
        <source>Addresses that begin with 127 stay inside the computer.</source>
        <translation>127 で始まるアドレスは、このコンピューターの内部だけで使われます。</translation>
    </message>
    <message>
        <source>Addresses from 240.0.0.0 on are reserved.</source>
        <translation>240.0.0.0 以降のアドレスは予約されています。</translation>
    </message>
    <message>
        <source>Addresses from 224.0.0.0 on are for groups of devices (multicast).</source>
        <translation>224.0.0.0 以降のアドレスは機器のグループ用です (マルチキャスト)。</translation>
    </message>
</context>
<context>
    <name>QIpAddressWithNetmaskValidator</name>
    <message>
        <source>The gateway cannot be the device itself. Enter 0.0.0.0 for none.</source>
        <translation>ゲートウェイを機器自身にすることはできません。使用しない場合は 0.0.0.0 を入力してください。</translation>
    </message>
    <message>
        <source>The gateway is not in the device's subnet. Enter 0.0.0.0 for none.</source>
        <translation>ゲートウェイが機器のサブネット内にありません。使用しない場合は 0.0.0.0 を入力してください。</translation>
    </message>
    <message>
        <source>With this mask, this is the address of the network itself.</source>
        <translation>このマスクでは、これはネットワーク自体のアドレスです。</translation>
    </message>
    <message>
        <source>With this mask, this is the broadcast address of the network.</source>
        <translation>このマスクでは、これはネットワークのブロードキャスト アドレスです。</translation>
    </message>
</context>
<context>
    <name>QIpNetmaskValidator</name>
    <message>
        <source>The mask 0.0.0.0 tells no network from another.</source>
        <translation>マスク 0.0.0.0 ではネットワークを区別できません。</translation>
    </message>
    <message>
        <source>This is no mask: its ones must stand together, as in 255.255.255.0.</source>
        <translation>これはマスクではありません。255.255.255.0 のように、1 のビットが連続している必要があります。</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 32 after the slash.</source>
        <translation>スラッシュの後に 1 から 32 までの数値を入力してください。</translation>
    </message>
    <message>
        <source>Only a number from 1 to 32 can follow the slash.</source>
        <translation>スラッシュの後に入力できるのは 1 から 32 までの数値だけです。</translation>
    </message>
</context>
<context>
    <name>QMacAddressValidator</name>
    <message>
        <source>This address is for a group of devices (multicast).</source>
        <translation>このアドレスは機器のグループ用です (マルチキャスト)。</translation>
    </message>
    <message>
        <source>An address of nothing but zeros stands for no device.</source>
        <translation>0 だけのアドレスは、どの機器も表しません。</translation>
    </message>
    <message>
        <source>Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.</source>
        <translation>使用できるのは 0 から 9 の数字と A から F の文字、コロン、ハイフンだけです。</translation>
    </message>
    <message>
        <source>There are more than six numbers of two digits.</source>
        <translation>2 桁の数値が 7 つ以上あります。</translation>
    </message>
    <message>
        <source>Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>00:1B:2C:3D:4E:5F のように、2 桁の数値を 6 つ入力してください。</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>実行中…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>「%1」は数値ではありません: %2</translation>
    </message>
    <message>
        <source>nothing may stand between thousands; %1</source>
        <translation>桁区切りは使用できません。%1</translation>
    </message>
    <message>
        <source>the exponent is missing</source>
        <translation>指数がありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>leave out the unit</source>
        <translation>単位は省略してください</translation>
    </message>
    <message>
        <source>use digits, a decimal sign and an exponent as in %1</source>
        <translation>%1 のように、数字、小数点、指数を使用してください</translation>
    </message>
    <message>
        <source>use %1 as the decimal sign</source>
        <translation>小数点には %1 を使用してください</translation>
    </message>
    <message>
        <source>The number is not complete.</source>
        <translation>数値が完結していません。</translation>
    </message>
    <message>
        <source>%1 is the maximum</source>
        <translation>最大値は %1 です</translation>
    </message>
    <message>
        <source>%1 is the minimum</source>
        <translation>最小値は %1 です</translation>
    </message>
    <message>
        <source>%1 is the nearest value (increment: %2)</source>
        <translation>最も近い値は %1 です (増分: %2)</translation>
    </message>
</context>
<context>
    <name>IntSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
</context>
<context>
    <name>IntegerText</name>
    <message>
        <source>Enter four numbers from 0 to 255 with dots between them and without leading zeros, such as 192.168.0.10.</source>
        <translation>192.168.0.10 のように、0 から 255 までの 4 つの数値をピリオドで区切り、先頭の 0 を付けずに入力してください。</translation>
    </message>
    <message>
        <source>Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>00:1B:2C:3D:4E:5F のように、6 つの 16 進数をコロンで区切って入力してください。</translation>
    </message>
    <message>
        <source>Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.</source>
        <translation>0x に続けて、0 から 9 の数字と a から f の文字で 16 進数を入力してください。</translation>
    </message>
    <message>
        <source>Enter a whole number, without decimals and without separators.</source>
        <translation>小数や区切り文字のない整数を入力してください。</translation>
    </message>
    <message>
        <source>Enter a whole number alone, without a unit.</source>
        <translation>単位を付けずに、整数だけを入力してください。</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>整数を入力してください。</translation>
    </message>
    <message>
        <source>The limits of this feature contradict each other, so that no number fits.</source>
        <translation>このパラメーターの上限と下限が矛盾しているため、有効な数値がありません。</translation>
    </message>
    <message>
        <source>%1 is the next value below, in steps of %2</source>
        <translation>%1 が直下の値です (%2 刻み)</translation>
    </message>
    <message>
        <source>This value was refused.</source>
        <translation>この値は拒否されました。</translation>
    </message>
</context>
<context>
    <name>FeatureSettings</name>
    <message>
        <source>%1: it is a directory</source>
        <translation>%1: ディレクトリです</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>longer than %1 KiB</source>
        <translation>%1 KiB を超えています</translation>
    </message>
    <message>
        <source>a file of more than %1 MiB holds no camera settings</source>
        <translation>%1 MiB を超えるファイルはカメラの設定ではありません</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>this is no UTF-8 text</source>
        <translation>UTF-8 のテキストではありません</translation>
    </message>
    <message>
        <source>"%1" is no name of a feature</source>
        <translation>「%1」はパラメーター名ではありません</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 に値がありません</translation>
    </message>
    <message>
        <source>there are more than %1 values</source>
        <translation>値が %1 個を超えています</translation>
    </message>
</context>
<context>
    <name>SettingsReading</name>
    <message>
        <source>%1 makes more than %2 combinations; only the present one is read</source>
        <translation>%1 の組み合わせは %2 通りを超えるため、現在のものだけを読み取ります</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; only the present one is read</source>
        <translation>%1 が選択する値は %2 個を超えるため、現在のものだけを読み取ります</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; what it selects is left out</source>
        <translation>%1 が選択する値は %2 個を超えるため、選択対象は省略されます</translation>
    </message>
    <message>
        <source>%1=%2 cannot be chosen: %3</source>
        <translation>%1=%2 を選択できません: %3</translation>
    </message>
    <message>
        <source>%1 cannot be put back to %2: %3</source>
        <translation>%1 を %2 に戻せません: %3</translation>
    </message>
</context>
<context>
    <name>SettingsApplying</name>
    <message>
        <source>%1 is no feature that has a value</source>
        <translation>%1 は値を持つパラメーターではありません</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>設定 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>変更なし %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>拒否 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>なし %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>読み戻し値の相違 %n 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>未実行 %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost: %1.</source>
        <translation>カメラとの接続が失われました: %1。</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>キャンセルしました: %1。</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>完了しました: %1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>set</source>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>変更なし</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>拒否: %1</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>カメラにこのパラメーターはありません</translation>
    </message>
    <message>
        <source>"%1" was written, "%2" is read back</source>
        <translation>「%1」を書き込みましたが、「%2」が読み戻されました</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未実行</translation>
    </message>
</context>
<context>
    <name>SettingsProgress</name>
    <message>
        <source>Starting…</source>
        <translation>開始しています…</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2: %3</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>キャンセルしています…</translation>
    </message>
</context>
<context>
    <name>SettingsReportDialog</name>
    <message>
        <source>Settings Loaded</source>
        <translation>設定を読み込みました</translation>
    </message>
    <message>
        <source>Show &amp;all features</source>
        <translation>すべてのパラメーターを表示(&amp;A)</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>要求値</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What Was Before</source>
        <translation>変更前の状態に戻す(&amp;P)</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
</context>
<context>
    <name>ChangeHistory</name>
    <message>
        <source>Failed to undo a change.</source>
        <translation>変更を元に戻せませんでした。</translation>
    </message>
    <message>
        <source>Failed to redo a change.</source>
        <translation>変更をやり直せませんでした。</translation>
    </message>
    <message>
        <source>%1: the feature is gone</source>
        <translation>%1: パラメーターはもうありません</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>パラメーターの値を設定できませんでした。</translation>
    </message>
    <message>
        <source>values set: %1</source>
        <translation>設定した値: %1</translation>
    </message>
</context>
<context>
    <name>ChangeHistoryWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>パラメーターへ移動(&amp;G)</translation>
    </message>
    <message>
        <source>Put &amp;Back the Value Before</source>
        <translation>変更前の値に戻す(&amp;B)</translation>
    </message>
    <message>
        <source>Set the Value &amp;After Again</source>
        <translation>変更後の値を再設定(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as Text…</source>
        <translation>テキストとして保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>変更履歴</translation>
    </message>
    <message>
        <source>What was changed since the camera was opened</source>
        <translation>カメラを開いてから変更されたもの</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>変更履歴を検索</translation>
    </message>
    <message>
        <source>Save Changes as Text</source>
        <translation>変更履歴をテキストとして保存</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>テキスト ファイル (*.txt);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>refused: %1</source>
        <translation>拒否: %1</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>元に戻しました</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>実行しました</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>変更前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
</context>
<context>
    <name>DifferenceList</name>
    <message>
        <source>no value</source>
        <translation>値なし</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>パラメーター</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>こちら</translation>
    </message>
    <message>
        <source>There</source>
        <translation>比較対象</translation>
    </message>
</context>
<context>
    <name>SettingsComparisonWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>パラメーターへ移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>取り込む(&amp;T)</translation>
    </message>
    <message>
        <source>Take Over &amp;All</source>
        <translation>すべて取り込む(&amp;A)</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>再比較(&amp;G)</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>相違点</translation>
    </message>
    <message>
        <source>In what the camera differs from a file, another camera or how it was</source>
        <translation>ファイル、別のカメラ、または以前の状態とカメラとの相違点</translation>
    </message>
    <message>
        <source>Sets the values from there that are selected</source>
        <translation>選択した比較対象の値を設定します</translation>
    </message>
    <message>
        <source>Sets all values from there that are shown</source>
        <translation>表示されている比較対象の値をすべて設定します</translation>
    </message>
    <message>
        <source>Search differences</source>
        <translation>相違点を検索</translation>
    </message>
    <message>
        <source>No difference from %1</source>
        <translation>%1 との相違点はありません</translation>
    </message>
    <message>
        <source>Differences from %1</source>
        <translation>%1 との相違点</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>比較していません。</translation>
    </message>
    <message>
        <source>&amp;Different (%1)</source>
        <translation>相違(&amp;D) (%1)</translation>
    </message>
    <message>
        <source>Only &amp;here (%1)</source>
        <translation>こちらのみ(&amp;H) (%1)</translation>
    </message>
    <message>
        <source>Only th&amp;ere (%1)</source>
        <translation>比較対象のみ(&amp;E) (%1)</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
    </message>
</context>
</TS>
