<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CameraDialog</name>
    <message>
        <source>Connect to Camera</source>
        <translation>连接相机</translation>
    </message>
    <message>
        <source>Reachable cameras</source>
        <translation>可访问的相机</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>重新搜索(&amp;R)</translation>
    </message>
    <message>
        <source>%1 %2 (%3), %4</source>
        <translation>%1 %2 (%3)，%4</translation>
    </message>
    <message>
        <source>No camera answers. Check its power, its cable and the network interface, then rescan.</source>
        <translation>没有相机响应。请检查电源、线缆和网络接口，然后重新搜索。</translation>
    </message>
    <message>
        <source>%1, available</source>
        <translation>%1，可用</translation>
    </message>
    <message>
        <source>%1, in use by another program, opens read-only</source>
        <translation>%1，另一个程序正在使用，以只读方式打开</translation>
    </message>
    <message>
        <source>%1, in use by a program at %2, opens read-only</source>
        <translation>%1，%2 处的程序正在使用，以只读方式打开</translation>
    </message>
    <message>
        <source>%1, held by another program for itself</source>
        <translation>%1，被另一个程序独占</translation>
    </message>
    <message>
        <source>%1, not in a subnet of this computer</source>
        <translation>%1，不在本机的子网内</translation>
    </message>
    <message>
        <source>%1, does not answer</source>
        <translation>%1，没有响应</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>Waiting until the opening of a camera has ended…</source>
        <translation>正在等待打开相机的操作结束…</translation>
    </message>
</context>
<context>
    <name>ColoursMenu</name>
    <message>
        <source>C&amp;olours</source>
        <translation>颜色(&amp;O)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
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
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Floating-point number</source>
        <translation>浮点数</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Not implemented</source>
        <translation>未实现</translation>
    </message>
    <message>
        <source>Read and write</source>
        <translation>可读写</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Write only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>%1 to %2%3</source>
        <translation>%1 到 %2%3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>增量</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>可见性</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Description of the current feature</source>
        <translation>当前参数的说明</translation>
    </message>
</context>
<context>
    <name>IpConfiguration</name>
    <message>
        <source>The reason is not known.</source>
        <translation>原因不明。</translation>
    </message>
    <message>
        <source>This camera has no features for an IP configuration</source>
        <translation>此相机没有用于 IP 配置的参数</translation>
    </message>
    <message>
        <source>The camera does not allow its IP configuration to be changed now</source>
        <translation>相机现在不允许更改其 IP 配置</translation>
    </message>
    <message>
        <source>The IP configuration was not changed. %1</source>
        <translation>IP 配置未更改。%1</translation>
    </message>
</context>
<context>
    <name>Levels</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>初级(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>专家(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>大师(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;All Features</source>
        <translation>所有参数(&amp;A)</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>不可见</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Features</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Copy &amp;Tree to Clipboard</source>
        <translation>将树复制到剪贴板(&amp;T)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Description File…</source>
        <translation>打开描述文件(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Connect to Camera…</source>
        <translation>连接相机(&amp;C)…</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>C&amp;lose Camera</source>
        <translation>关闭相机(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Monitor Mode</source>
        <translation>监视模式(&amp;M)</translation>
    </message>
    <message>
        <source>Polling re-reads all features, not only the volatile ones</source>
        <translation>轮询重新读取所有参数，而不仅是易变的参数</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;IP Configuration…</source>
        <translation>IP 配置(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Show All Messages Again</source>
        <translation>重新显示所有消息(&amp;S)</translation>
    </message>
    <message>
        <source>Brings back the messages that were silenced</source>
        <translation>恢复显示已屏蔽的消息</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>关于(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Level</source>
        <translation>级别(&amp;L)</translation>
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
        <translation>没有相机</translation>
    </message>
    <message>
        <source>Zelto Viewer</source>
        <translation>Zelto Viewer</translation>
    </message>
    <message>
        <source>Open Description File</source>
        <translation>打开描述文件</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>相机描述 (*.xml *.zip);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Close Camera</source>
        <translation>关闭相机</translation>
    </message>
    <message>
        <source>Close the camera %1?
Changes that were not saved to one of its user sets last until it is switched off.</source>
        <translation>要关闭相机 %1 吗？
未保存到用户集的更改只保留到相机断电。</translation>
    </message>
    <message>
        <source>IP Configuration</source>
        <translation>IP 配置</translation>
    </message>
    <message>
        <source>The new IP configuration takes effect after the camera restarts.</source>
        <translation>新的 IP 配置将在相机重新启动后生效。</translation>
    </message>
    <message>
        <source>Address, mask and gateway that the camera starts with</source>
        <translation>相机启动时使用的地址、掩码和网关</translation>
    </message>
    <message>
        <source>No camera is open</source>
        <translation>没有打开相机</translation>
    </message>
    <message>
        <source>The camera was lost</source>
        <translation>与相机的连接已丢失</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n 个结果</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n 个结果，其中 %1 个在更高级别</numerusform>
        </translation>
    </message>
    <message>
        <source>All messages are shown again.</source>
        <translation>所有消息将重新显示。</translation>
    </message>
    <message>
        <source>About Zelto Viewer</source>
        <translation>关于 Zelto Viewer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;Shows a camera's features in a tree, for GigE Vision and USB3 Vision cameras and for any GenICam camera description file.</source>
        <translation>&lt;b&gt;Zelto Viewer %1&lt;/b&gt;&lt;p&gt;以树形显示相机的参数，适用于 GigE Vision 和 USB3 Vision 相机以及任何 GenICam 相机描述文件。</translation>
    </message>
    <message>
        <source>No camera is open.
Open a description file or connect to a camera (menu File).</source>
        <translation>没有打开相机。
请打开描述文件或连接相机（“文件”菜单）。</translation>
    </message>
    <message>
        <source>&amp;Reconnect</source>
        <translation>重新连接(&amp;R)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>The tree was copied to the clipboard.</source>
        <translation>树已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The open camera has no such feature.</source>
        <translation>打开的相机没有此参数。</translation>
    </message>
    <message>
        <source>&amp;Take Control</source>
        <translation>获取控制权(&amp;T)</translation>
    </message>
    <message>
        <source>Take Control</source>
        <translation>获取控制权</translation>
    </message>
    <message>
        <source>The camera is open read-only. No program controls it now.</source>
        <translation>相机以只读方式打开。目前没有程序控制它。</translation>
    </message>
    <message>
        <source>The camera is held by another program and open read-only.</source>
        <translation>相机被另一个程序占用，以只读方式打开。</translation>
    </message>
    <message>
        <source>The camera is held by another program at %1 and open read-only.</source>
        <translation>相机被 %1 处的另一个程序占用，以只读方式打开。</translation>
    </message>
    <message>
        <source>Taking control of the camera…</source>
        <translation>正在获取相机的控制权…</translation>
    </message>
    <message>
        <source>The control of the camera was not taken: %1</source>
        <translation>未能获取相机的控制权：%1</translation>
    </message>
    <message>
        <source>Allows the camera's features to be changed</source>
        <translation>允许更改相机的参数</translation>
    </message>
    <message>
        <source>Only of a camera that is open read-only and free</source>
        <translation>仅适用于以只读方式打开且未被控制的相机</translation>
    </message>
    <message>
        <source>Open R&amp;ecent</source>
        <translation>打开最近使用的项目(&amp;E)</translation>
    </message>
    <message>
        <source>How many features are shown</source>
        <translation>显示多少参数</translation>
    </message>
    <message>
        <source>Level: %1</source>
        <translation>级别：%1</translation>
    </message>
    <message>
        <source>the camera %1</source>
        <translation>相机 %1</translation>
    </message>
    <message>
        <source>the embedded camera</source>
        <translation>内置模拟相机</translation>
    </message>
    <message>
        <source>The opening was cancelled.</source>
        <translation>打开操作已取消。</translation>
    </message>
    <message>
        <source>%1[*] – %2 – Zelto Viewer</source>
        <translation>%1[*] – %2 – Zelto Viewer</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>此参数在当前级别不显示</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>相机设置</translation>
    </message>
    <message>
        <source>Values of the camera differ from the settings file %1.
Close without saving them?</source>
        <translation>相机的值与设置文件 %1 不同。
要不保存就关闭吗？</translation>
    </message>
    <message>
        <source>The camera was sending images when it was lost.</source>
        <translation>与相机的连接丢失时，相机正在发送图像。</translation>
    </message>
    <message>
        <source>Start Images</source>
        <translation>开始采集图像</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>（之前还有 %n 条消息）</numerusform>
        </translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Message: %1</source>
        <translation>消息：%1</translation>
    </message>
</context>
<context>
    <name>VisitedFeaturesPanel</name>
    <message>
        <source>Visited Features</source>
        <translation>访问过的参数</translation>
    </message>
    <message>
        <source>The features you visited last; a click goes back</source>
        <translation>最近访问的参数；单击可返回</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>此参数在当前级别不显示</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>Value Editors – Zelto Viewer</source>
        <translation>值编辑器 – Zelto Viewer</translation>
    </message>
</context>
<context>
    <name>CommandQuestion</name>
    <message>
        <source>Restart the camera?
The connection breaks, and changes that were not saved to one of its user sets are lost.</source>
        <translation>要重新启动相机吗？
连接将中断，未保存到用户集的更改将丢失。</translation>
    </message>
    <message>
        <source>Reset the camera to its factory settings?
All settings are lost, those saved to its user sets too.</source>
        <translation>要将相机恢复为出厂设置吗？
所有设置都将丢失，包括保存在用户集中的设置。</translation>
    </message>
    <message>
        <source>Load the user set "%1"?
It overwrites the present settings.</source>
        <translation>要加载用户集“%1”吗？
它将覆盖当前设置。</translation>
    </message>
    <message>
        <source>Save the present settings to the user set "%1"?
They overwrite what is saved there.</source>
        <translation>要将当前设置保存到用户集“%1”吗？
原先保存的内容将被覆盖。</translation>
    </message>
    <message>
        <source>Write to the camera's file "%1"?
What the file holds is overwritten.</source>
        <translation>要写入相机的文件“%1”吗？
文件的内容将被覆盖。</translation>
    </message>
    <message>
        <source>Delete the camera's file "%1"?
What the file holds is lost.</source>
        <translation>要删除相机的文件“%1”吗？
文件的内容将丢失。</translation>
    </message>
</context>
<context>
    <name>TreeMenu</name>
    <message>
        <source>&amp;Expand All</source>
        <translation>全部展开(&amp;E)</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>全部折叠(&amp;A)</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>复制名称(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>复制值(&amp;V)</translation>
    </message>
    <message>
        <source>Copy &amp;Full Name</source>
        <translation>复制完整名称(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Go To Feature</source>
        <translation>转到参数(&amp;G)</translation>
    </message>
    <message>
        <source>This feature is not shown at the current level</source>
        <translation>此参数在当前级别不显示</translation>
    </message>
</context>
<context>
    <name>RecentSources</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>The file does not exist at present</source>
        <translation>文件目前不存在</translation>
    </message>
</context>
<context>
    <name>OpeningPage</name>
    <message>
        <source>Opening %1</source>
        <translation>正在打开 %1</translation>
    </message>
    <message>
        <source>Waiting until the search for another camera, or its opening, has ended…</source>
        <translation>正在等待搜索或打开另一台相机的操作结束…</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Reading the description…</source>
        <translation>正在读取描述…</translation>
    </message>
    <message>
        <source>Reading the features: %1 of %2</source>
        <translation>正在读取参数：%1/%2</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>&amp;Save Settings…</source>
        <translation>保存设置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Load Settings…</source>
        <translation>加载设置(&amp;L)…</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Saves all values that can be changed to a text file</source>
        <translation>将所有可更改的值保存到文本文件</translation>
    </message>
    <message>
        <source>Brings the values in a file to the camera</source>
        <translation>将文件中的值设置到相机</translation>
    </message>
    <message>
        <source>Save Settings</source>
        <translation>保存设置</translation>
    </message>
    <message>
        <source>Load Settings</source>
        <translation>加载设置</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>相机设置 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1：其中没有设置</translation>
    </message>
    <message>
        <source>These are settings of the model %1, and the open camera is a %2.
Load them all the same?</source>
        <translation>这是型号 %1 的设置，而打开的相机是 %2。
仍要加载吗？</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>加载(&amp;L)</translation>
    </message>
    <message>
        <source>No settings were saved.</source>
        <translation>未保存任何设置。</translation>
    </message>
    <message>
        <source>The settings were saved, but for some that cannot be read.</source>
        <translation>设置已保存，但有些无法读取的除外。</translation>
    </message>
    <message>
        <source>The settings were saved to %1.</source>
        <translation>设置已保存到 %1。</translation>
    </message>
    <message>
        <source>What was before is back. %1</source>
        <translation>已恢复之前的状态。%1</translation>
    </message>
    <message>
        <source>Settings loaded. %1</source>
        <translation>设置已加载。%1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>no feature %1</source>
        <translation>没有参数 %1</translation>
    </message>
    <message>
        <source>no feature %1; did you mean %2?</source>
        <translation>没有参数 %1；是否指 %2？</translation>
    </message>
    <message>
        <source>%1: this is no feature that has a value</source>
        <translation>%1：这不是有值的参数</translation>
    </message>
    <message>
        <source>%1: it cannot be read now</source>
        <translation>%1：现在无法读取</translation>
    </message>
    <message>
        <source>%1: the camera does not answer</source>
        <translation>%1：相机没有响应</translation>
    </message>
    <message>
        <source>%1: this is no command</source>
        <translation>%1：这不是命令</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>相机没有响应</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>standard input: %1</source>
        <translation>标准输入：%1</translation>
    </message>
    <message>
        <source>%1: there are no settings in it</source>
        <translation>%1：其中没有设置</translation>
    </message>
    <message>
        <source>%1: these are settings of %2, and this is %3; --force loads them all the same</source>
        <translation>%1：这是 %2 的设置，而当前相机是 %3；使用 --force 可强制加载</translation>
    </message>
    <message>
        <source>Cannot write to the standard output.</source>
        <translation>无法写入标准输出。</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten</source>
        <translation>%1 已存在，且不会覆盖任何内容</translation>
    </message>
    <message>
        <source>this camera delivers no images</source>
        <translation>此相机不提供图像</translation>
    </message>
    <message>
        <source>no image came</source>
        <translation>未收到图像</translation>
    </message>
</context>
<context>
    <name>Comparison</name>
    <message>
        <source>Opening %1…</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Compare &amp;With</source>
        <translation>比较(&amp;W)</translation>
    </message>
    <message>
        <source>A &amp;File…</source>
        <translation>文件(&amp;F)…</translation>
    </message>
    <message>
        <source>The State When &amp;Opened</source>
        <translation>打开时的状态(&amp;O)</translation>
    </message>
    <message>
        <source>Another &amp;Description…</source>
        <translation>另一个描述(&amp;D)…</translation>
    </message>
    <message>
        <source>Another &amp;Camera…</source>
        <translation>另一台相机(&amp;C)…</translation>
    </message>
    <message>
        <source>Compare With a Settings File</source>
        <translation>与设置文件比较</translation>
    </message>
    <message>
        <source>Camera settings (*.txt);;All files (*)</source>
        <translation>相机设置 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>the state when opened</source>
        <translation>打开时的状态</translation>
    </message>
    <message>
        <source>Compare With Another Description</source>
        <translation>与另一个描述比较</translation>
    </message>
    <message>
        <source>Camera descriptions (*.xml *.zip);;All files (*)</source>
        <translation>相机描述 (*.xml *.zip);;所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>HistoryActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做(&amp;R)：%1</translation>
    </message>
    <message>
        <source>what was before</source>
        <translation>之前的状态</translation>
    </message>
</context>
<context>
    <name>WatchModel</name>
    <message>
        <source>Feature</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均值</translation>
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
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>%1前</translation>
    </message>
    <message>
        <source>now</source>
        <translation>现在</translation>
    </message>
    <message>
        <source>Plot of the watched features</source>
        <translation>被监视参数的曲线图</translation>
    </message>
    <message>
        <source>Make a feature current in the tree, and add it.</source>
        <translation>请在树中选择一个参数，然后添加它。</translation>
    </message>
</context>
<context>
    <name>WatchPanel</name>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>Re&amp;start</source>
        <translation>重新开始(&amp;S)</translation>
    </message>
    <message>
        <source>M&amp;ore</source>
        <translation>更多(&amp;O)</translation>
    </message>
    <message>
        <source>Save as &amp;CSV…</source>
        <translation>另存为 CSV(&amp;C)…</translation>
    </message>
    <message>
        <source>Save as P&amp;NG…</source>
        <translation>另存为 PNG(&amp;N)…</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>监视</translation>
    </message>
    <message>
        <source>Values of chosen features over time</source>
        <translation>所选参数的值随时间的变化</translation>
    </message>
    <message>
        <source>Forgets the values so far</source>
        <translation>清除目前为止的值</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Last minute</source>
        <translation>最近 1 分钟</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>最近 10 分钟</translation>
    </message>
    <message>
        <source>Last hour</source>
        <translation>最近 1 小时</translation>
    </message>
    <message>
        <source>Time that the plot shows</source>
        <translation>曲线图显示的时间</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, %1</source>
        <translation>监视树中的当前参数 %1</translation>
    </message>
    <message>
        <source>Watches the current feature of the tree, if it is a number or a Boolean</source>
        <translation>如果树中的当前参数是数字或布尔值，则监视它</translation>
    </message>
    <message>
        <source>Save Watched Values</source>
        <translation>保存监视的值</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>逗号分隔值 (*.csv)</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>保存曲线图</translation>
    </message>
    <message>
        <source>Images (*.png)</source>
        <translation>图像 (*.png)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>LanguagesMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
</context>
<context>
    <name>FrameFile</name>
    <message>
        <source>The pixel format %1 cannot be saved in this kind of file. Its bytes can, as a file whose name ends in .raw.</source>
        <translation>像素格式 %1 无法保存为此类文件。可以将其字节保存到名称以 .raw 结尾的文件。</translation>
    </message>
    <message>
        <source>There is nothing in the image that could be saved.</source>
        <translation>图像中没有可保存的内容。</translation>
    </message>
    <message>
        <source>%1 is there already, and nothing is overwritten.</source>
        <translation>%1 已存在，且不会覆盖任何内容。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>FrameRecorder</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>No folder can be made in %1.</source>
        <translation>无法在 %1 中创建文件夹。</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>Black: %1 (%2 %)   Saturated: %3 (%4 %)</source>
        <translation>黑色：%1 (%2%)   饱和：%3 (%4%)</translation>
    </message>
</context>
<context>
    <name>ImagePane</name>
    <message>
        <source>%1mean %2, deviation %3</source>
        <translation>%1均值 %2，标准差 %3</translation>
    </message>
    <message>
        <source>sharpness %1</source>
        <translation>清晰度 %1</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>St&amp;art Images</source>
        <translation>开始采集图像(&amp;A)</translation>
    </message>
    <message>
        <source>Shows what the camera sees</source>
        <translation>显示相机看到的画面</translation>
    </message>
    <message>
        <source>Si&amp;ngle Image</source>
        <translation>单幅图像(&amp;N)</translation>
    </message>
    <message>
        <source>Takes one image</source>
        <translation>采集一幅图像</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应窗口</translation>
    </message>
    <message>
        <source>Shows all of the image</source>
        <translation>显示整幅图像</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Shows each pixel as one of the screen</source>
        <translation>图像的每个像素对应屏幕上的一个像素</translation>
    </message>
    <message>
        <source>Crosshair</source>
        <translation>十字线</translation>
    </message>
    <message>
        <source>Marks the middle of the image</source>
        <translation>标出图像的中心</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Divides the image into thirds</source>
        <translation>将图像划分为三等分</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Dragging moves the image</source>
        <translation>拖动可移动图像</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Dragging draws a rectangle, of which mean, deviation and sharpness are shown</source>
        <translation>拖动可绘制矩形，并显示其均值、标准差和清晰度</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>直线</translation>
    </message>
    <message>
        <source>Dragging draws a line, along which the values are shown</source>
        <translation>拖动可绘制直线，并显示沿线的值</translation>
    </message>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>Shows the histogram, gamma and contrast</source>
        <translation>显示直方图、伽马和对比度</translation>
    </message>
    <message>
        <source>Mark Extremes</source>
        <translation>标出极值</translation>
    </message>
    <message>
        <source>Marks saturated pixels red and black ones blue</source>
        <translation>用红色标出饱和像素，用蓝色标出黑色像素</translation>
    </message>
    <message>
        <source>&amp;Full Frame</source>
        <translation>全画幅(&amp;F)</translation>
    </message>
    <message>
        <source>Makes all of the sensor the region of interest; dragging in the image with Ctrl makes it what is drawn</source>
        <translation>将整个传感器设为感兴趣区域；按住 Ctrl 在图像中拖动，则将所绘区域设为感兴趣区域</translation>
    </message>
    <message>
        <source>&amp;Logarithmic</source>
        <translation>对数(&amp;L)</translation>
    </message>
    <message>
        <source>Shows rare values as well</source>
        <translation>也显示出现较少的值</translation>
    </message>
    <message>
        <source>Statistics of the rectangle</source>
        <translation>矩形的统计数据</translation>
    </message>
    <message>
        <source>Of the drawn rectangle. Sharpness: steps between neighbours, in percent of the mean</source>
        <translation>针对所绘矩形。清晰度：相邻像素之差，以均值的百分比表示</translation>
    </message>
    <message>
        <source>Pixel under the cursor</source>
        <translation>光标处的像素</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>没有打开相机。</translation>
    </message>
    <message>
        <source>This camera delivers no images.</source>
        <translation>此相机不提供图像。</translation>
    </message>
    <message>
        <source>Start the images with F9.</source>
        <translation>按 F9 开始采集图像。</translation>
    </message>
    <message>
        <source>St&amp;op Images</source>
        <translation>停止采集图像(&amp;O)</translation>
    </message>
    <message>
        <source>%1 × %2, %3, frame %4, %5 %</source>
        <translation>%1 × %2，%3，第 %4 帧，%5%</translation>
    </message>
    <message>
        <source>x %1, y %2:  %3</source>
        <translation>x %1，y %2：  %3</translation>
    </message>
</context>
<context>
    <name>ImageSaving</name>
    <message>
        <source>Save I&amp;mage…</source>
        <translation>保存图像(&amp;M)…</translation>
    </message>
    <message>
        <source>Saves the image: what is shown as PNG, the raw values as TIFF, PGM or PPM</source>
        <translation>保存图像：所显示的内容存为 PNG，原始值存为 TIFF、PGM 或 PPM</translation>
    </message>
    <message>
        <source>Keeps the next images as files, with a table of their numbers and times</source>
        <translation>将接下来的图像保存为文件，并附带其编号和时间的表格</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>停止录制(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record Images…</source>
        <translation>录制图像(&amp;R)…</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>As shown (*.png);;Raw values (*.tif *.tiff);;Raw values (*.pgm *.ppm);;Bytes (*.raw);;All files (*)</source>
        <translation>显示的图像 (*.png);;原始值 (*.tif *.tiff);;原始值 (*.pgm *.ppm);;字节 (*.raw);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The image was saved to %1.</source>
        <translation>图像已保存到 %1。</translation>
    </message>
    <message>
        <source>Images recorded: %1 of %2</source>
        <translation>已录制的图像：%1/%2</translation>
    </message>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>录制在 %n 幅图像后结束。%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>由于磁盘速度过慢，略过了 %n 幅图像。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>已将 %n 幅图像录制到 %1。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageView</name>
    <message>
        <source>Camera image</source>
        <translation>相机图像</translation>
    </message>
    <message>
        <source>An image of %1 × %2 pixels cannot be shown.</source>
        <translation>无法显示 %1 × %2 像素的图像。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown. Its bytes can be saved.</source>
        <translation>无法显示像素格式 %1。可以保存其字节。</translation>
    </message>
</context>
<context>
    <name>LookControls</name>
    <message>
        <source>Ga&amp;mma</source>
        <translation>伽马(&amp;M)</translation>
    </message>
    <message>
        <source>Makes dark parts of what is shown brighter</source>
        <translation>使所显示画面的暗部变亮</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>黑色(&amp;K)</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown black</source>
        <translation>显示为黑色的值占最大值的比例</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>白色(&amp;W)</translation>
    </message>
    <message>
        <source>The share of the largest value that is shown white</source>
        <translation>显示为白色的值占最大值的比例</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Shows values as they are: gamma and contrast change nothing of the camera</source>
        <translation>按原样显示值：伽马和对比度不会更改相机的任何内容</translation>
    </message>
</context>
<context>
    <name>ProfileView</name>
    <message>
        <source>Line profile</source>
        <translation>直线剖面</translation>
    </message>
    <message>
        <source>The raw values along the drawn line</source>
        <translation>沿所绘直线的原始值</translation>
    </message>
</context>
<context>
    <name>RecordDialog</name>
    <message>
        <source>Record Images</source>
        <translation>录制图像</translation>
    </message>
    <message>
        <source>The images get a new folder in this one; nothing is overwritten</source>
        <translation>图像将放入此文件夹内的新文件夹；不会覆盖任何内容</translation>
    </message>
    <message>
        <source>TIFF, raw values</source>
        <translation>TIFF，原始值</translation>
    </message>
    <message>
        <source>PGM or PPM, raw values</source>
        <translation>PGM 或 PPM，原始值</translation>
    </message>
    <message>
        <source>PNG, as shown with 8 bits</source>
        <translation>PNG，显示的图像，8 位</translation>
    </message>
    <message>
        <source>Bytes as they came</source>
        <translation>收到的原始字节</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation>录制(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Images:</source>
        <translation>图像(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>类型(&amp;K)：</translation>
    </message>
    <message>
        <source>Folder for Images</source>
        <translation>存放图像的文件夹</translation>
    </message>
</context>
<context>
    <name>RegionOfInterest</name>
    <message>
        <source>region of interest</source>
        <translation>感兴趣区域</translation>
    </message>
    <message>
        <source>The camera did not take the whole region. %1</source>
        <translation>相机未接受整个区域。%1</translation>
    </message>
</context>
<context>
    <name>StreamControl</name>
    <message>
        <source>%1 frames/s, %2 MB/s, %3 complete, %4 incomplete, %5 dropped</source>
        <translation>%1 帧/秒，%2 MB/秒，完整 %3，不完整 %4，丢弃 %5</translation>
    </message>
</context>
</TS>
