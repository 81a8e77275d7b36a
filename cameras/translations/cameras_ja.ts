<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Cameras::Camera</name>
    <message>
        <source>it is a directory</source>
        <translation>ディレクトリです</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Transport Layer</source>
        <translation>トランスポート レイヤー</translation>
    </message>
    <message>
        <source>Stream Grabber</source>
        <translation>ストリーム グラバー</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>内蔵のシミュレーション カメラ</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>カメラ %1</translation>
    </message>
</context>
<context>
    <name>Cameras::Description</name>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>文書型宣言は使用できません</translation>
    </message>
    <message>
        <source>this is no camera description</source>
        <translation>カメラ記述ではありません</translation>
    </message>
    <message>
        <source>the description has no category "Root"</source>
        <translation>記述にカテゴリー「Root」がありません</translation>
    </message>
    <message>
        <source>a text is longer than %1 characters</source>
        <translation>%1 文字を超えるテキストがあります</translation>
    </message>
    <message>
        <source>elements nest more than %1 deep</source>
        <translation>要素の入れ子が %1 段を超えています</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>要素が %1 個を超えています</translation>
    </message>
    <message>
        <source>there are more than %1 nodes</source>
        <translation>ノードが %1 個を超えています</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>%1 のパラメーター %n 個は読み取られません: 許される評価は 1 個につき %2 回、全体で %3 回までです (%4)</numerusform>
        </translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>レジスターが %1 MiB を超えています</translation>
    </message>
</context>
<context>
    <name>Cameras::Engine</name>
    <message>
        <source>the engine cannot read the description</source>
        <translation>エンジンが記述を読み取れません</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1: 「%2」は使用できません。%3 を指定してください</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 には今は書き込めません</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>an integer of at most 64 bits</source>
        <translation>64 ビット以内の整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true、false、1、0 のいずれか</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>テキストなし</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1: 「%2」は範囲外です。%3 から %4 までの値を指定できます</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: 「%2」は使用できません。%3 に %4 の倍数を加えた値を指定してください</translation>
    </message>
    <message>
        <source>no null characters</source>
        <translation>ヌル文字を含まないテキスト</translation>
    </message>
    <message>
        <source>at most %1 bytes</source>
        <translation>%1 バイト以内のテキスト</translation>
    </message>
    <message>
        <source>an integer, such as 0x1f</source>
        <translation>0x1f のような整数</translation>
    </message>
    <message>
        <source>four numbers from 0 to 255, such as 192.168.0.10</source>
        <translation>192.168.0.10 のような、0 から 255 までの 4 つの数値</translation>
    </message>
    <message>
        <source>six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F</source>
        <translation>00:1B:2C:3D:4E:5F のような 6 つの 16 進数</translation>
    </message>
    <message>
        <source>a subnet mask, whose ones stand together, such as 255.255.255.0</source>
        <translation>255.255.255.0 のような、1 のビットが連続するサブネット マスク</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1 (使用不可)</translation>
    </message>
    <message>
        <source>%1 is not read: the registers would take more than %2 MiB</source>
        <translation>%1 は読み取られません: レジスターが %2 MiB を超えます</translation>
    </message>
</context>
<context>
    <name>Cameras::NodeProperties</name>
    <message>
        <source>%1: "%2" is no %3, expected %4</source>
        <translation>%1: 「%2」は %3 の値ではありません。%4 を指定してください</translation>
    </message>
    <message>
        <source>%1: the property "%2" cannot be imposed, only Visibility and AccessMode can</source>
        <translation>%1: プロパティ「%2」は指定できません。指定できるのは Visibility と AccessMode だけです</translation>
    </message>
</context>
<context>
    <name>Cameras::RegisterImage</name>
    <message>
        <source>line %1: expected an address and bytes in hexadecimal digits</source>
        <translation>%1 行目: アドレスと 16 進数のバイト列が必要です</translation>
    </message>
    <message>
        <source>there are more than %1 lines</source>
        <translation>行が %1 行を超えています</translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>レジスターが %1 MiB を超えています</translation>
    </message>
</context>
<context>
    <name>Cameras::Session</name>
    <message>
        <source>no answer in time</source>
        <translation>時間内に応答がありません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The camera was closed.</source>
        <translation>カメラが閉じられました。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>カメラが応答しません。</translation>
    </message>
    <message>
        <source>the camera is open read-only</source>
        <translation>カメラは読み取り専用で開かれています</translation>
    </message>
    <message>
        <source>%1: the camera did not answer in time, so it is not known whether this was written</source>
        <translation>%1: カメラが時間内に応答しなかったため、書き込まれたかどうかは不明です</translation>
    </message>
    <message>
        <source>%1: not written, since the camera was busy for a second</source>
        <translation>%1: カメラが 1 秒間ビジーだったため、書き込まれませんでした</translation>
    </message>
    <message>
        <source>%1 Whether the last change of %2 has arrived is not known.</source>
        <translation>%1 %2 の最後の変更が届いたかどうかは不明です。</translation>
    </message>
    <message>
        <source>the system has no thread left</source>
        <translation>システムに空きスレッドがありません</translation>
    </message>
    <message>
        <source>No more images come, since another program controls the camera.</source>
        <translation>別のプログラムがカメラを制御しているため、画像はもう届きません。</translation>
    </message>
    <message>
        <source>No images can be had: %1</source>
        <translation>画像を取得できません: %1</translation>
    </message>
</context>
<context>
    <name>Cameras::DescriptionArchive</name>
    <message>
        <source>the file is too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>the archive holds no camera description</source>
        <translation>アーカイブにカメラ記述が含まれていません</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>アーカイブが破損しています</translation>
    </message>
</context>
<context>
    <name>Cameras::EngineFailure</name>
    <message>
        <source>the camera does not answer</source>
        <translation>カメラが応答しません</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>カメラが接続されていません</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>そのようなカメラはありません</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>カメラがパラメーターの記述を提供しません</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>別のプログラムがカメラを制御しています</translation>
    </message>
    <message>
        <source>the camera denies the access</source>
        <translation>カメラがアクセスを拒否しました</translation>
    </message>
    <message>
        <source>the camera protects it from being written</source>
        <translation>カメラにより書き込みが禁止されています</translation>
    </message>
    <message>
        <source>the camera is busy</source>
        <translation>カメラがビジーです</translation>
    </message>
    <message>
        <source>the camera has no such register</source>
        <translation>カメラにそのレジスターはありません</translation>
    </message>
    <message>
        <source>the camera does not accept the value</source>
        <translation>カメラがこの値を受け付けません</translation>
    </message>
    <message>
        <source>the camera does not support it</source>
        <translation>カメラはこれに対応していません</translation>
    </message>
    <message>
        <source>the camera refuses</source>
        <translation>カメラが拒否しました</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>値が範囲外です</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>読み取り専用です</translation>
    </message>
    <message>
        <source>there is no such entry</source>
        <translation>そのような項目はありません</translation>
    </message>
    <message>
        <source>the length does not fit</source>
        <translation>長さが合いません</translation>
    </message>
    <message>
        <source>the camera's description of it is not usable</source>
        <translation>カメラの記述のこの部分は使用できません</translation>
    </message>
    <message>
        <source>the connection to the camera failed</source>
        <translation>カメラへの接続に失敗しました</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveCamera</name>
    <message>
        <source>there is no such camera</source>
        <translation>そのようなカメラはありません</translation>
    </message>
    <message>
        <source>no camera answers at %1</source>
        <translation>%1 で応答するカメラがありません</translation>
    </message>
    <message>
        <source>%1 is in none of this computer's subnets</source>
        <translation>%1 は、このコンピューターのどのサブネットにもありません</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>カメラがパラメーターの記述を提供しません</translation>
    </message>
    <message>
        <source>The camera %1 does not answer.</source>
        <translation>カメラ %1 が応答しません。</translation>
    </message>
    <message>
        <source>The camera at %1 does not answer.</source>
        <translation>%1 のカメラが応答しません。</translation>
    </message>
    <message>
        <source>held by another program</source>
        <translation>別のプログラムが使用中</translation>
    </message>
    <message>
        <source>held by another program at %1</source>
        <translation>%1 の別のプログラムが使用中</translation>
    </message>
    <message>
        <source>The camera at %1 answers again.</source>
        <translation>%1 のカメラが再び応答しています。</translation>
    </message>
    <message>
        <source>Another camera answers at %1: serial number %2.</source>
        <translation>%1 で別のカメラが応答しています: シリアル番号 %2。</translation>
    </message>
    <message>
        <source>the camera's description cannot be read from %1</source>
        <translation>%1 からカメラの記述を読み取れません</translation>
    </message>
    <message>
        <source>the camera at %1 answers, but does not let itself be read</source>
        <translation>%1 のカメラは応答しますが、読み取れません</translation>
    </message>
</context>
<context>
    <name>Cameras::FrameSource</name>
    <message>
        <source>The camera has sent as many images as AcquisitionMode asks for.</source>
        <translation>カメラは AcquisitionMode で指定された枚数の画像を送信しました。</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveSource</name>
    <message>
        <source>the camera does not tell how large they are (PayloadSize)</source>
        <translation>カメラが画像のサイズを通知しません (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera tells that they have %1 bytes (PayloadSize)</source>
        <translation>カメラは画像のサイズを %1 バイトと通知しています (PayloadSize)</translation>
    </message>
    <message>
        <source>the camera has no stream</source>
        <translation>カメラにストリームがありません</translation>
    </message>
    <message>
        <source>The payload is of the kind %1 and holds no image.</source>
        <translation>ペイロードの種類が %1 で、画像が含まれていません。</translation>
    </message>
    <message>
        <source>The payload has %1 parts, of which this is number %2.</source>
        <translation>ペイロードは %1 個のパートからなり、これは %2 番目です。</translation>
    </message>
    <message>
        <source>Chunk data came with the image.</source>
        <translation>画像とともにチャンク データが届きました。</translation>
    </message>
    <message>
        <source>The image is larger than the camera told (PayloadSize).</source>
        <translation>画像がカメラの通知したサイズを超えています (PayloadSize)。</translation>
    </message>
    <message>
        <source>Packets are missing: %1.</source>
        <translation>欠落したパケット: %1。</translation>
    </message>
    <message>
        <source>A part is missing.</source>
        <translation>一部が欠落しています。</translation>
    </message>
</context>
<context>
    <name>Cameras::ReceivedFrame</name>
    <message>
        <source>The camera tells of an image of %1 x %2 pixels.</source>
        <translation>カメラが通知した画像は %1 x %2 ピクセルです。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are missing.</source>
        <translation>%2 バイト中 %1 バイトが欠落しています。</translation>
    </message>
</context>
<context>
    <name>Cameras::SimulatedImage</name>
    <message>
        <source>The simulated camera makes no images in the pixel format %1.</source>
        <translation>シミュレーション カメラはピクセル形式 %1 の画像を生成しません。</translation>
    </message>
    <message>
        <source>The simulated camera makes no images of %1 x %2 pixels.</source>
        <translation>シミュレーション カメラは %1 x %2 ピクセルの画像を生成しません。</translation>
    </message>
</context>
</TS>
