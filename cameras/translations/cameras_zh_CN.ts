<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Cameras::Camera</name>
    <message>
        <source>it is a directory</source>
        <translation>这是一个目录</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Transport Layer</source>
        <translation>传输层</translation>
    </message>
    <message>
        <source>Stream Grabber</source>
        <translation>流采集器</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>内置模拟相机</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>相机 %1</translation>
    </message>
</context>
<context>
    <name>Cameras::Description</name>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>不允许使用文档类型声明</translation>
    </message>
    <message>
        <source>this is no camera description</source>
        <translation>这不是相机描述</translation>
    </message>
    <message>
        <source>the description has no category "Root"</source>
        <translation>描述中没有“Root”类别</translation>
    </message>
    <message>
        <source>a text is longer than %1 characters</source>
        <translation>有文本超过 %1 个字符</translation>
    </message>
    <message>
        <source>elements nest more than %1 deep</source>
        <translation>元素嵌套超过 %1 层</translation>
    </message>
    <message>
        <source>there are more than %1 elements</source>
        <translation>元素超过 %1 个</translation>
    </message>
    <message>
        <source>there are more than %1 nodes</source>
        <translation>节点超过 %1 个</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>%1 的 %n 个参数不读取：单个参数最多允许 %2 次求值，全部共 %3 次 (%4)</numerusform>
        </translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>寄存器超过 %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Engine</name>
    <message>
        <source>the engine cannot read the description</source>
        <translation>引擎无法读取描述</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1：不允许“%2”，应为%3</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 现在不可写</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>an integer of at most 64 bits</source>
        <translation>不超过 64 位的整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true、false、1 或 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1：“%2”超出范围，允许的范围为 %3 到 %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1：不允许“%2”，应为 %3 加上 %4 的倍数</translation>
    </message>
    <message>
        <source>no null characters</source>
        <translation>不含空字符的文本</translation>
    </message>
    <message>
        <source>at most %1 bytes</source>
        <translation>不超过 %1 字节的文本</translation>
    </message>
    <message>
        <source>an integer, such as 0x1f</source>
        <translation>整数，例如 0x1f</translation>
    </message>
    <message>
        <source>four numbers from 0 to 255, such as 192.168.0.10</source>
        <translation>四个 0 到 255 之间的数字，例如 192.168.0.10</translation>
    </message>
    <message>
        <source>six hexadecimal numbers, such as 00:1B:2C:3D:4E:5F</source>
        <translation>六个十六进制数，例如 00:1B:2C:3D:4E:5F</translation>
    </message>
    <message>
        <source>a subnet mask, whose ones stand together, such as 255.255.255.0</source>
        <translation>其中的 1 连续的子网掩码，例如 255.255.255.0</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1（不可用）</translation>
    </message>
    <message>
        <source>%1 is not read: the registers would take more than %2 MiB</source>
        <translation>%1 不读取：寄存器将超过 %2 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::NodeProperties</name>
    <message>
        <source>%1: "%2" is no %3, expected %4</source>
        <translation>%1：“%2”不是%3的值，应为%4</translation>
    </message>
    <message>
        <source>%1: the property "%2" cannot be imposed, only Visibility and AccessMode can</source>
        <translation>%1：不能强制设置属性“%2”，只能强制设置 Visibility 和 AccessMode</translation>
    </message>
</context>
<context>
    <name>Cameras::RegisterImage</name>
    <message>
        <source>line %1: expected an address and bytes in hexadecimal digits</source>
        <translation>第 %1 行：应为地址和十六进制字节</translation>
    </message>
    <message>
        <source>there are more than %1 lines</source>
        <translation>行数超过 %1</translation>
    </message>
    <message>
        <source>the registers take more than %1 MiB</source>
        <translation>寄存器超过 %1 MiB</translation>
    </message>
</context>
<context>
    <name>Cameras::Session</name>
    <message>
        <source>no answer in time</source>
        <translation>未及时响应</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The camera was closed.</source>
        <translation>相机已关闭。</translation>
    </message>
    <message>
        <source>The camera does not answer.</source>
        <translation>相机没有响应。</translation>
    </message>
    <message>
        <source>the camera is open read-only</source>
        <translation>相机以只读方式打开</translation>
    </message>
    <message>
        <source>%1: the camera did not answer in time, so it is not known whether this was written</source>
        <translation>%1：相机未及时响应，因此无法得知是否已写入</translation>
    </message>
    <message>
        <source>%1: not written, since the camera was busy for a second</source>
        <translation>%1：未写入，因为相机持续忙碌了一秒钟</translation>
    </message>
    <message>
        <source>%1 Whether the last change of %2 has arrived is not known.</source>
        <translation>%1 无法得知对 %2 的最后一次更改是否已送达。</translation>
    </message>
    <message>
        <source>the system has no thread left</source>
        <translation>系统没有可用的线程</translation>
    </message>
    <message>
        <source>No more images come, since another program controls the camera.</source>
        <translation>不再收到图像，因为另一个程序正在控制相机。</translation>
    </message>
    <message>
        <source>No images can be had: %1</source>
        <translation>无法获取图像：%1</translation>
    </message>
</context>
<context>
    <name>Cameras::DescriptionArchive</name>
    <message>
        <source>the file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>the archive holds no camera description</source>
        <translation>压缩包中没有相机描述</translation>
    </message>
    <message>
        <source>the archive is damaged</source>
        <translation>压缩包已损坏</translation>
    </message>
</context>
<context>
    <name>Cameras::EngineFailure</name>
    <message>
        <source>the camera does not answer</source>
        <translation>相机没有响应</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>相机未连接</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>没有这样的相机</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>相机未提供其参数的描述</translation>
    </message>
    <message>
        <source>another program controls the camera</source>
        <translation>另一个程序正在控制相机</translation>
    </message>
    <message>
        <source>the camera denies the access</source>
        <translation>相机拒绝访问</translation>
    </message>
    <message>
        <source>the camera protects it from being written</source>
        <translation>相机对其进行了写保护</translation>
    </message>
    <message>
        <source>the camera is busy</source>
        <translation>相机正忙</translation>
    </message>
    <message>
        <source>the camera has no such register</source>
        <translation>相机没有此寄存器</translation>
    </message>
    <message>
        <source>the camera does not accept the value</source>
        <translation>相机不接受此值</translation>
    </message>
    <message>
        <source>the camera does not support it</source>
        <translation>相机不支持此操作</translation>
    </message>
    <message>
        <source>the camera refuses</source>
        <translation>相机拒绝</translation>
    </message>
    <message>
        <source>the value is out of range</source>
        <translation>值超出范围</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>它是只读的</translation>
    </message>
    <message>
        <source>there is no such entry</source>
        <translation>没有这样的条目</translation>
    </message>
    <message>
        <source>the length does not fit</source>
        <translation>长度不符</translation>
    </message>
    <message>
        <source>the camera's description of it is not usable</source>
        <translation>相机对其的描述无法使用</translation>
    </message>
    <message>
        <source>the connection to the camera failed</source>
        <translation>与相机的连接失败</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveCamera</name>
    <message>
        <source>there is no such camera</source>
        <translation>没有这样的相机</translation>
    </message>
    <message>
        <source>no camera answers at %1</source>
        <translation>%1 处没有相机响应</translation>
    </message>
    <message>
        <source>%1 is in none of this computer's subnets</source>
        <translation>%1 不在本机的任何子网内</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the camera hands out no description of its features</source>
        <translation>相机未提供其参数的描述</translation>
    </message>
    <message>
        <source>The camera %1 does not answer.</source>
        <translation>相机 %1 没有响应。</translation>
    </message>
    <message>
        <source>The camera at %1 does not answer.</source>
        <translation>%1 处的相机没有响应。</translation>
    </message>
    <message>
        <source>held by another program</source>
        <translation>被另一个程序占用</translation>
    </message>
    <message>
        <source>held by another program at %1</source>
        <translation>被 %1 处的另一个程序占用</translation>
    </message>
    <message>
        <source>The camera at %1 answers again.</source>
        <translation>%1 处的相机已恢复响应。</translation>
    </message>
    <message>
        <source>Another camera answers at %1: serial number %2.</source>
        <translation>%1 处响应的是另一台相机：序列号 %2。</translation>
    </message>
    <message>
        <source>the camera's description cannot be read from %1</source>
        <translation>无法从 %1 读取相机描述</translation>
    </message>
    <message>
        <source>the camera at %1 answers, but does not let itself be read</source>
        <translation>%1 处的相机有响应，但无法读取</translation>
    </message>
</context>
<context>
    <name>Cameras::FrameSource</name>
    <message>
        <source>The camera has sent as many images as AcquisitionMode asks for.</source>
        <translation>相机已发送 AcquisitionMode 所要求数量的图像。</translation>
    </message>
</context>
<context>
    <name>Cameras::LiveSource</name>
    <message>
        <source>the camera does not tell how large they are (PayloadSize)</source>
        <translation>相机未给出图像的大小（PayloadSize）</translation>
    </message>
    <message>
        <source>the camera tells that they have %1 bytes (PayloadSize)</source>
        <translation>相机给出的图像大小为 %1 字节（PayloadSize）</translation>
    </message>
    <message>
        <source>the camera has no stream</source>
        <translation>相机没有流</translation>
    </message>
    <message>
        <source>The payload is of the kind %1 and holds no image.</source>
        <translation>载荷的类型为 %1，其中没有图像。</translation>
    </message>
    <message>
        <source>The payload has %1 parts, of which this is number %2.</source>
        <translation>载荷有 %1 个部分，这是第 %2 个。</translation>
    </message>
    <message>
        <source>Chunk data came with the image.</source>
        <translation>随图像一起收到了 Chunk 数据。</translation>
    </message>
    <message>
        <source>The image is larger than the camera told (PayloadSize).</source>
        <translation>图像大于相机给出的大小（PayloadSize）。</translation>
    </message>
    <message>
        <source>Packets are missing: %1.</source>
        <translation>缺少数据包：%1。</translation>
    </message>
    <message>
        <source>A part is missing.</source>
        <translation>缺少一部分。</translation>
    </message>
</context>
<context>
    <name>Cameras::ReceivedFrame</name>
    <message>
        <source>The camera tells of an image of %1 x %2 pixels.</source>
        <translation>相机给出的图像尺寸为 %1 x %2 像素。</translation>
    </message>
    <message>
        <source>%1 of %2 bytes are missing.</source>
        <translation>缺少 %2 字节中的 %1 字节。</translation>
    </message>
</context>
<context>
    <name>Cameras::SimulatedImage</name>
    <message>
        <source>The simulated camera makes no images in the pixel format %1.</source>
        <translation>模拟相机不生成像素格式为 %1 的图像。</translation>
    </message>
    <message>
        <source>The simulated camera makes no images of %1 x %2 pixels.</source>
        <translation>模拟相机不生成 %1 x %2 像素的图像。</translation>
    </message>
</context>
</TS>
