<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddressValidator</name>
    <message>
        <source>There are blanks in the address.</source>
        <translation>地址中含有空格。</translation>
    </message>
    <message>
        <source>There are more than four numbers.</source>
        <translation>数字超过四个。</translation>
    </message>
    <message>
        <source>Only digits and dots are allowed.</source>
        <translation>只允许使用数字和点号。</translation>
    </message>
    <message>
        <source>Write %1 without leading zeros.</source>
        <translation>请写成不带前导零的 %1。</translation>
    </message>
    <message>
        <source>%1 is larger than 255.</source>
        <translation>%1 大于 255。</translation>
    </message>
    <message>
        <source>Enter four numbers with dots between them.</source>
        <translation>请输入以点号分隔的四个数字。</translation>
    </message>
</context>
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1..%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>ErrorHandling</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Unexpected exception occurred</source>
        <translation>发生了意外的异常</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未实现&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;不可用&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <source>%1: "%2" has characters outside Latin-1, which this camera cannot store.</source>
        <translation>%1：“%2”含有 Latin-1 以外的字符，此相机无法保存。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Failed to get a feature value</source>
        <translation>未能读取参数值</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>未能设置参数值。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Failed to get the node 'Root' from the node map</source>
        <translation>未能从节点表中获取节点“Root”</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>收藏夹</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Favorites&lt;/h3&gt;&lt;b&gt;This node contains a list of features selected by the user&lt;/b&gt;&lt;br&gt;&lt;br&gt;To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.&lt;br&gt;Favorites can be moved up and down within the list as well as removed from the list by right-clicking an item and choosing the appropriate option from the context menu.</source>
        <translation>&lt;h3&gt;收藏夹&lt;/h3&gt;&lt;b&gt;此节点包含用户选择的参数列表&lt;/b&gt;&lt;br&gt;&lt;br&gt;要添加参数，请右键单击该参数，然后从快捷菜单中选择“添加到收藏夹”。也可以通过拖放将参数添加到收藏夹。&lt;br&gt;右键单击收藏项并从快捷菜单中选择相应的选项，可在列表中上移、下移收藏项，或将其从列表中移除。</translation>
    </message>
    <message>
        <source>Add favorites by right-clicking a feature below.</source>
        <translation>右键单击下面的参数即可添加到收藏夹。</translation>
    </message>
    <message>
        <source>To add a feature, right-click the feature and choose 'Add to Favorites' from the context menu. You can also use drag and drop to add features to your favorites.</source>
        <translation>要添加参数，请右键单击该参数，然后从快捷菜单中选择“添加到收藏夹”。也可以通过拖放将参数添加到收藏夹。</translation>
    </message>
    <message>
        <source>Favorite</source>
        <translation>个收藏项</translation>
    </message>
    <message>
        <source>%1 %2 (%3 is unavailable for the current camera)</source>
        <translation>%1 %2（%3 个对当前相机不可用）</translation>
    </message>
    <message>
        <source>%1 %2 (%3 are unavailable for the current camera)</source>
        <translation>%1 %2（%3 个对当前相机不可用）</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No search results found.</source>
        <translation>未找到搜索结果。</translation>
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
        <translation>添加到收藏夹</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>轮询</translation>
    </message>
    <message>
        <source>Search (%1)</source>
        <translation>搜索 (%1)</translation>
    </message>
    <message>
        <source>&lt;B&gt;%1 search results (%2 of them visible at higher user level)&lt;/B&gt;</source>
        <translation>&lt;B&gt;%1 个搜索结果（其中 %2 个在更高的用户级别可见）&lt;/B&gt;</translation>
    </message>
    <message>
        <source>The camera gave no reason.</source>
        <translation>相机未说明原因。</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>找到 %n 个参数</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1，更高级别还有 %n 个</numerusform>
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
        <translation>显示不可用的收藏项</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>轮询(&amp;O)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>刷新参数树</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>参数</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
</context>
<context>
    <name>HelpLink</name>
    <message>
        <source>Get help</source>
        <translation>获取帮助</translation>
    </message>
    <message>
        <source>The help page could not be opened.</source>
        <translation>无法打开帮助页面。</translation>
    </message>
    <message>
        <source>Copy Link Location</source>
        <translation>复制链接地址</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>范围：0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1..%2</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
</context>
<context>
    <name>IpAddressWidget</name>
    <message>
        <source>IP Configuration</source>
        <translation>IP 配置</translation>
    </message>
    <message>
        <source>&amp;IP address:</source>
        <translation>IP 地址(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Subnet mask:</source>
        <translation>子网掩码(&amp;S)：</translation>
    </message>
    <message>
        <source>Default &amp;gateway:</source>
        <translation>默认网关(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;MAC address:</source>
        <translation>MAC 地址(&amp;M)：</translation>
    </message>
    <message>
        <source>Prefix length %1</source>
        <translation>前缀长度 %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxCheckable</name>
    <message>
        <source>&amp;Don't show this dialog again</source>
        <translation>不再显示此对话框(&amp;D)</translation>
    </message>
</context>
<context>
    <name>QIpAddressValidator</name>
    <message>
        <source>This is the broadcast address, no device can have it.</source>
        <translation>这是广播地址，设备不能使用。</translation>
    </message>
    <message>
        <source>Addresses that begin with 0 stand for no device.</source>
        <translation>以 0 开头的地址不代表任何设备。</translation>
    </message>
    <message>
        <source>Addresses that begin with 127 stay inside the computer.</source>
        <translation>以 127 开头的地址仅在本机内部使用。</translation>
    </message>
    <message>
        <source>Addresses from 240.0.0.0 on are reserved.</source>
        <translation>从 240.0.0.0 起的地址为保留地址。</translation>
    </message>
    <message>
        <source>Addresses from 224.0.0.0 on are for groups of devices (multicast).</source>
        <translation>从 224.0.0.0 起的地址用于设备组（组播）。</translation>
    </message>
</context>
<context>
    <name>QIpAddressWithNetmaskValidator</name>
    <message>
        <source>The gateway cannot be the device itself. Enter 0.0.0.0 for none.</source>
        <translation>网关不能是设备本身。不使用网关请输入 0.0.0.0。</translation>
    </message>
    <message>
        <source>The gateway is not in the device's subnet. Enter 0.0.0.0 for none.</source>
        <translation>网关不在设备的子网内。不使用网关请输入 0.0.0.0。</translation>
    </message>
    <message>
        <source>With this mask, this is the address of the network itself.</source>
        <translation>使用此掩码时，这是网络本身的地址。</translation>
    </message>
    <message>
        <source>With this mask, this is the broadcast address of the network.</source>
        <translation>使用此掩码时，这是网络的广播地址。</translation>
    </message>
</context>
<context>
    <name>QIpNetmaskValidator</name>
    <message>
        <source>The mask 0.0.0.0 tells no network from another.</source>
        <translation>掩码 0.0.0.0 无法区分网络。</translation>
    </message>
    <message>
        <source>This is no mask: its ones must stand together, as in 255.255.255.0.</source>
        <translation>这不是掩码：其中的 1 必须连续，例如 255.255.255.0。</translation>
    </message>
    <message>
        <source>Enter a number from 1 to 32 after the slash.</source>
        <translation>请在斜杠后输入 1 到 32 之间的数字。</translation>
    </message>
    <message>
        <source>Only a number from 1 to 32 can follow the slash.</source>
        <translation>斜杠后只能是 1 到 32 之间的数字。</translation>
    </message>
</context>
<context>
    <name>QMacAddressValidator</name>
    <message>
        <source>This address is for a group of devices (multicast).</source>
        <translation>此地址用于设备组（组播）。</translation>
    </message>
    <message>
        <source>An address of nothing but zeros stands for no device.</source>
        <translation>全零地址不代表任何设备。</translation>
    </message>
    <message>
        <source>Only the digits 0 to 9 and A to F are allowed, with colons or hyphens.</source>
        <translation>只允许使用数字 0 到 9 和字母 A 到 F，以及冒号或连字符。</translation>
    </message>
    <message>
        <source>There are more than six numbers of two digits.</source>
        <translation>两位数超过六个。</translation>
    </message>
    <message>
        <source>Enter six numbers of two digits, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>请输入六个两位数，例如 00:1B:2C:3D:4E:5F。</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Running…</source>
        <translation>正在执行…</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>NumberText</name>
    <message>
        <source>"%1" is not a number: %2</source>
        <translation>“%1”不是数字：%2</translation>
    </message>
    <message>
        <source>nothing may stand between thousands; %1</source>
        <translation>千位之间不能有任何字符；%1</translation>
    </message>
    <message>
        <source>the exponent is missing</source>
        <translation>缺少指数</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>数值过大</translation>
    </message>
    <message>
        <source>leave out the unit</source>
        <translation>请省略单位</translation>
    </message>
    <message>
        <source>use digits, a decimal sign and an exponent as in %1</source>
        <translation>请使用数字、小数点和指数，例如 %1</translation>
    </message>
    <message>
        <source>use %1 as the decimal sign</source>
        <translation>请使用 %1 作为小数点</translation>
    </message>
    <message>
        <source>The number is not complete.</source>
        <translation>数字不完整。</translation>
    </message>
    <message>
        <source>%1 is the maximum</source>
        <translation>%1 是最大值</translation>
    </message>
    <message>
        <source>%1 is the minimum</source>
        <translation>%1 是最小值</translation>
    </message>
    <message>
        <source>%1 is the nearest value (increment: %2)</source>
        <translation>%1 是最接近的值（增量：%2）</translation>
    </message>
</context>
<context>
    <name>IntSliderEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
</context>
<context>
    <name>IntegerText</name>
    <message>
        <source>Enter four numbers from 0 to 255 with dots between them and without leading zeros, such as 192.168.0.10.</source>
        <translation>请输入四个 0 到 255 之间的数字，以点号分隔且不带前导零，例如 192.168.0.10。</translation>
    </message>
    <message>
        <source>Enter six hexadecimal numbers with colons between them, such as 00:1B:2C:3D:4E:5F.</source>
        <translation>请输入六个以冒号分隔的十六进制数，例如 00:1B:2C:3D:4E:5F。</translation>
    </message>
    <message>
        <source>Enter a hexadecimal number behind 0x, with the digits 0 to 9 and a to f.</source>
        <translation>请在 0x 后输入十六进制数，使用数字 0 到 9 和字母 a 到 f。</translation>
    </message>
    <message>
        <source>Enter a whole number, without decimals and without separators.</source>
        <translation>请输入整数，不带小数和分隔符。</translation>
    </message>
    <message>
        <source>Enter a whole number alone, without a unit.</source>
        <translation>请只输入整数，不带单位。</translation>
    </message>
    <message>
        <source>Enter a whole number.</source>
        <translation>请输入整数。</translation>
    </message>
    <message>
        <source>The limits of this feature contradict each other, so that no number fits.</source>
        <translation>此参数的上下限相互矛盾，没有符合的数值。</translation>
    </message>
    <message>
        <source>%1 is the next value below, in steps of %2</source>
        <translation>%1 是向下最接近的值，步长为 %2</translation>
    </message>
    <message>
        <source>This value was refused.</source>
        <translation>此值被拒绝。</translation>
    </message>
</context>
<context>
    <name>FeatureSettings</name>
    <message>
        <source>%1: it is a directory</source>
        <translation>%1：这是一个目录</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>longer than %1 KiB</source>
        <translation>超过 %1 KiB</translation>
    </message>
    <message>
        <source>a file of more than %1 MiB holds no camera settings</source>
        <translation>超过 %1 MiB 的文件不会是相机设置</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>this is no UTF-8 text</source>
        <translation>这不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>"%1" is no name of a feature</source>
        <translation>“%1”不是参数名称</translation>
    </message>
    <message>
        <source>%1 has no value</source>
        <translation>%1 没有值</translation>
    </message>
    <message>
        <source>there are more than %1 values</source>
        <translation>值超过 %1 个</translation>
    </message>
</context>
<context>
    <name>SettingsReading</name>
    <message>
        <source>%1 makes more than %2 combinations; only the present one is read</source>
        <translation>%1 的组合超过 %2 种；只读取当前组合</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; only the present one is read</source>
        <translation>%1 可选择的值超过 %2 个；只读取当前值</translation>
    </message>
    <message>
        <source>%1 selects among more than %2 values; what it selects is left out</source>
        <translation>%1 可选择的值超过 %2 个；其选择的内容被略过</translation>
    </message>
    <message>
        <source>%1=%2 cannot be chosen: %3</source>
        <translation>无法选择 %1=%2：%3</translation>
    </message>
    <message>
        <source>%1 cannot be put back to %2: %3</source>
        <translation>无法将 %1 恢复为 %2：%3</translation>
    </message>
</context>
<context>
    <name>SettingsApplying</name>
    <message>
        <source>%1 is no feature that has a value</source>
        <translation>%1 不是有值的参数</translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>已设置 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>未更改 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>被拒绝 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>缺失 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>回读不一致 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>未尝试 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>The camera was lost: %1.</source>
        <translation>与相机的连接已丢失：%1。</translation>
    </message>
    <message>
        <source>Cancelled: %1.</source>
        <translation>已取消：%1。</translation>
    </message>
    <message>
        <source>Done: %1.</source>
        <translation>已完成：%1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>set</source>
        <translation>已设置</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>未更改</translation>
    </message>
    <message>
        <source>refused: %1</source>
        <translation>被拒绝：%1</translation>
    </message>
    <message>
        <source>the camera has no such feature</source>
        <translation>相机没有此参数</translation>
    </message>
    <message>
        <source>"%1" was written, "%2" is read back</source>
        <translation>写入了“%1”，回读为“%2”</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>未尝试</translation>
    </message>
</context>
<context>
    <name>SettingsProgress</name>
    <message>
        <source>Starting…</source>
        <translation>正在开始…</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1/%2：%3</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
</context>
<context>
    <name>SettingsReportDialog</name>
    <message>
        <source>Settings Loaded</source>
        <translation>设置已加载</translation>
    </message>
    <message>
        <source>Show &amp;all features</source>
        <translation>显示所有参数(&amp;A)</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>要求的值</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Put Back What Was Before</source>
        <translation>恢复之前的状态(&amp;P)</translation>
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
        <translation>未能撤销更改。</translation>
    </message>
    <message>
        <source>Failed to redo a change.</source>
        <translation>未能重做更改。</translation>
    </message>
    <message>
        <source>%1: the feature is gone</source>
        <translation>%1：参数已不存在</translation>
    </message>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>未能设置参数值。</translation>
    </message>
    <message>
        <source>values set: %1</source>
        <translation>已设置的值：%1</translation>
    </message>
</context>
<context>
    <name>ChangeHistoryWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>转到参数(&amp;G)</translation>
    </message>
    <message>
        <source>Put &amp;Back the Value Before</source>
        <translation>恢复更改前的值(&amp;B)</translation>
    </message>
    <message>
        <source>Set the Value &amp;After Again</source>
        <translation>重新设置更改后的值(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as Text…</source>
        <translation>另存为文本(&amp;S)…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>更改记录</translation>
    </message>
    <message>
        <source>What was changed since the camera was opened</source>
        <translation>打开相机以来所做的更改</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>搜索更改记录</translation>
    </message>
    <message>
        <source>Save Changes as Text</source>
        <translation>将更改记录另存为文本</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>文本文件 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ChangeList</name>
    <message>
        <source>refused: %1</source>
        <translation>被拒绝：%1</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>已撤销</translation>
    </message>
    <message>
        <source>executed</source>
        <translation>已执行</translation>
    </message>
    <message>
        <source>done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>之前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>之后</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
</context>
<context>
    <name>DifferenceList</name>
    <message>
        <source>no value</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>此处</translation>
    </message>
    <message>
        <source>There</source>
        <translation>对方</translation>
    </message>
</context>
<context>
    <name>SettingsComparisonWidget</name>
    <message>
        <source>&amp;Go to Feature</source>
        <translation>转到参数(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>采用(&amp;T)</translation>
    </message>
    <message>
        <source>Take Over &amp;All</source>
        <translation>全部采用(&amp;A)</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>重新比较(&amp;G)</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>差异</translation>
    </message>
    <message>
        <source>In what the camera differs from a file, another camera or how it was</source>
        <translation>相机与文件、另一台相机或其先前状态的差异</translation>
    </message>
    <message>
        <source>Sets the values from there that are selected</source>
        <translation>设置对方所选的值</translation>
    </message>
    <message>
        <source>Sets all values from there that are shown</source>
        <translation>设置对方显示的所有值</translation>
    </message>
    <message>
        <source>Search differences</source>
        <translation>搜索差异</translation>
    </message>
    <message>
        <source>No difference from %1</source>
        <translation>与 %1 没有差异</translation>
    </message>
    <message>
        <source>Differences from %1</source>
        <translation>与 %1 的差异</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>没有进行比较。</translation>
    </message>
    <message>
        <source>&amp;Different (%1)</source>
        <translation>不同(&amp;D) (%1)</translation>
    </message>
    <message>
        <source>Only &amp;here (%1)</source>
        <translation>仅此处(&amp;H) (%1)</translation>
    </message>
    <message>
        <source>Only th&amp;ere (%1)</source>
        <translation>仅对方(&amp;E) (%1)</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
</TS>
