<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AddressRules</name>
    <message>
        <source>Enter an address such as 192.168.1.20 or https://gate.local:8443</source>
        <translation>请输入地址，例如 192.168.1.20 或 https://gate.local:8443</translation>
    </message>
    <message>
        <source>The address must begin with http:// or https://</source>
        <translation>地址必须以 http:// 或 https:// 开头</translation>
    </message>
    <message>
        <source>The address must hold no user name, ? or #</source>
        <translation>地址不能包含用户名、? 或 #</translation>
    </message>
    <message>
        <source>A token has only letters, digits and signs of the English keyboard, and no blanks</source>
        <translation>令牌只能包含英文字母、数字和英文符号，且不能有空格</translation>
    </message>
</context>
<context>
    <name>AlertHistoryDlg</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>No messages yet</source>
        <translation>暂无消息</translation>
    </message>
</context>
<context>
    <name>BackupThread</name>
    <message>
        <source>The person register was backed up to %1</source>
        <translation>人员库已备份到 %1</translation>
    </message>
</context>
<context>
    <name>CertificateDlg</name>
    <message>
        <source>Certificate of %1</source>
        <translation>%1 的证书</translation>
    </message>
    <message>
        <source>This device shows a certificate that the system does not trust. Compare the fingerprint with the one that the device itself displays. Trust it only when both are the same: otherwise someone may be standing between you and the device.</source>
        <translation>该设备出示的证书不受系统信任。请将指纹与设备自身显示的指纹比对。仅当两者一致时才信任：否则您与设备之间可能存在中间人。</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>信任此证书</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>颁发给</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>颁发者</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>Fingerprint (SHA-256)</source>
        <translation>指纹 (SHA-256)</translation>
    </message>
    <message>
        <source>Not trusted because</source>
        <translation>不受信任的原因</translation>
    </message>
</context>
<context>
    <name>DemoDevice</name>
    <message>
        <source>The simulated device cannot be started: is face-device-sim installed beside the client?</source>
        <translation>无法启动模拟设备：face-device-sim 是否与客户端安装在同一位置？</translation>
    </message>
    <message>
        <source>Simulated door</source>
        <translation>模拟门禁</translation>
    </message>
    <message>
        <source>Entrance</source>
        <translation>入口</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>出口</translation>
    </message>
</context>
<context>
    <name>DeviceDlg</name>
    <message>
        <source>Add device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>编辑设备</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>192.168.1.20 or https://gate.local:8443</source>
        <translation>192.168.1.20 或 https://gate.local:8443</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>令牌</translation>
    </message>
    <message>
        <source>As set on the device; empty for none</source>
        <translation>与设备上的设置一致；无则留空</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Empty: the name that the device gives itself</source>
        <translation>留空：使用设备自身的名称</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 has this address already. Enter another one.</source>
        <translation>%1 已使用该地址。请输入其他地址。</translation>
    </message>
    <message>
        <source>Asking the device for its channels...</source>
        <translation>正在向设备查询通道...</translation>
    </message>
    <message>
        <source>The store did not take the device. The alert tells why.</source>
        <translation>人员库未接受该设备。原因见提示消息。</translation>
    </message>
</context>
<context>
    <name>DevicesModel</name>
    <message>
        <source>Certificate not trusted</source>
        <translation>证书不受信任</translation>
    </message>
    <message>
        <source>Token refused</source>
        <translation>令牌被拒绝</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Not tested yet</source>
        <translation>尚未测试</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not a face device</source>
        <translation>不是人脸设备</translation>
    </message>
</context>
<context>
    <name>DevicesPage</name>
    <message>
        <source>Add device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>测试连接</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>No devices yet.

Press &quot;Add device&quot; and enter the address of a face-recognition device.
Its channels can then receive the faces of the register.</source>
        <translation>暂无设备。

请点击“添加设备”并输入人脸识别设备的地址。
之后其通道即可接收人员库中的人脸。</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Testing %1...</source>
        <translation>正在测试 %1...</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot;? The faces that it holds stay on it.</source>
        <translation>确定要移除设备“%1”吗？设备上的人脸将保留。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 answered within %2 ms and has %3 channel(s).</source>
        <translation>%1 在 %2 毫秒内响应，共有 %3 个通道。</translation>
    </message>
</context>
<context>
    <name>Language</name>
    <message>
        <source>Language of the system</source>
        <translation>系统语言</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Demonstration</source>
        <translation>演示</translation>
    </message>
    <message>
        <source>Persons</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Person register</source>
        <translation>人员库</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>QuitGuard</name>
    <message>
        <source>Quitting...</source>
        <translation>正在退出...</translation>
    </message>
    <message>
        <source>The work that is running ends first. Nothing is lost.</source>
        <translation>正在等待当前任务完成，不会丢失任何数据。</translation>
    </message>
</context>
<context>
    <name>SettingsDlg</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Rows a page</source>
        <translation>每页行数</translation>
    </message>
    <message>
        <source>Person register</source>
        <translation>人员库</translation>
    </message>
    <message>
        <source>Language and person register take effect at the next start.</source>
        <translation>语言和人员库将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open or make a person register</source>
        <translation>打开或新建人员库</translation>
    </message>
    <message>
        <source>Person register (*.db)</source>
        <translation>人员库 (*.db)</translation>
    </message>
    <message>
        <source>Back up...</source>
        <translation>备份...</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>Back up the person register</source>
        <translation>备份人员库</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份...</translation>
    </message>
</context>
<context>
    <name>StoreFailureDlg</name>
    <message>
        <source>The person register cannot be opened</source>
        <translation>无法打开人员库</translation>
    </message>
    <message>
        <source>Nothing was changed. Try again once the cause is gone, or use another file.</source>
        <translation>未做任何更改。请排除原因后重试，或使用其他文件。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Another file...</source>
        <translation>其他文件...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Open or make a person register</source>
        <translation>打开或新建人员库</translation>
    </message>
    <message>
        <source>Person register (*.db)</source>
        <translation>人员库 (*.db)</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>The directory &quot;%1&quot; does not exist. Create it or choose another one.</source>
        <translation>目录“%1”不存在。请创建该目录或选择其他目录。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory. Choose a directory.</source>
        <translation>“%1”不是目录。请选择一个目录。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written to. Change its permissions or choose another place.</source>
        <translation>无法写入“%1”。请更改权限或选择其他位置。</translation>
    </message>
    <message>
        <source>There is no room left at &quot;%1&quot;. Free some space or choose another place.</source>
        <translation>“%1”空间不足。请释放空间或选择其他位置。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
</context>
<context>
    <name>XCOMMON::ToolsCollection</name>
    <message>
        <source>The image &quot;%1&quot; cannot be read: there is no such file. Choose another one.</source>
        <translation>无法读取图片“%1”：文件不存在。请选择其他图片。</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; cannot be read: %2. Check its permissions or choose another one.</source>
        <translation>无法读取图片“%1”：%2。请检查权限或选择其他图片。</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; is larger than %2 MiB. Choose a smaller one.</source>
        <translation>图片“%1”大于 %2 MiB。请选择较小的图片。</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; cannot be read: %2. Try again or choose another one.</source>
        <translation>无法读取图片“%1”：%2。请重试或选择其他图片。</translation>
    </message>
</context>
<context>
    <name>dvx_sdk</name>
    <message>
        <source>The device answered.</source>
        <translation>设备已响应。</translation>
    </message>
    <message>
        <source>Nothing answers at this address. Check the address, the network and whether the device is switched on.</source>
        <translation>该地址无响应。请检查地址、网络以及设备是否已开机。</translation>
    </message>
    <message>
        <source>The device did not answer in time. Check the network and whether the device is busy.</source>
        <translation>设备响应超时。请检查网络以及设备是否繁忙。</translation>
    </message>
    <message>
        <source>What answers at this address is not a face device, or does not work as it should. Check the address.</source>
        <translation>该地址响应的不是人脸设备，或设备工作异常。请检查地址。</translation>
    </message>
    <message>
        <source>The device is not known any more. Add it on the Devices page.</source>
        <translation>设备已不存在。请在“设备”页面添加。</translation>
    </message>
    <message>
        <source>The device has no such channel. Test the device on the Devices page to read its channels again.</source>
        <translation>设备没有该通道。请在“设备”页面测试设备以重新读取通道。</translation>
    </message>
    <message>
        <source>The face is not known. Read the channel&apos;s faces again.</source>
        <translation>未知的人脸。请重新读取该通道的人脸。</translation>
    </message>
    <message>
        <source>The device&apos;s certificate is not trusted. Test the device on the Devices page to look at it.</source>
        <translation>设备证书不受信任。请在“设备”页面测试设备以查看证书。</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Check whether the address must begin with http:// instead of https://.</source>
        <translation>无法建立加密连接。请检查地址是否应以 http:// 而不是 https:// 开头。</translation>
    </message>
    <message>
        <source>The device closed the connection before it had answered. Try again.</source>
        <translation>设备在响应前关闭了连接。请重试。</translation>
    </message>
    <message>
        <source>The device&apos;s address or token cannot be used. Correct it on the Devices page.</source>
        <translation>设备的地址或令牌无效。请在“设备”页面更正。</translation>
    </message>
    <message>
        <source>The program is about to end.</source>
        <translation>程序即将退出。</translation>
    </message>
    <message>
        <source>The device refuses the token. Enter the token that is set on the device.</source>
        <translation>设备拒绝该令牌。请输入设备上设置的令牌。</translation>
    </message>
    <message>
        <source>The token may not do this. Check its rights on the device.</source>
        <translation>该令牌无此权限。请在设备上检查其权限。</translation>
    </message>
    <message>
        <source>The device does not have what was asked for. Check the address.</source>
        <translation>设备上没有所请求的内容。请检查地址。</translation>
    </message>
    <message>
        <source>The device holds a face with this serial number already.</source>
        <translation>设备上已存在该编号的人脸。</translation>
    </message>
    <message>
        <source>The photograph is too large for the device.</source>
        <translation>照片对设备而言过大。</translation>
    </message>
    <message>
        <source>The device is busy. Try again in a moment.</source>
        <translation>设备繁忙。请稍后重试。</translation>
    </message>
    <message>
        <source>The device is full. Delete faces that are not needed any more.</source>
        <translation>设备已满。请删除不再需要的人脸。</translation>
    </message>
    <message>
        <source>The device refused with HTTP status %1.</source>
        <translation>设备拒绝，HTTP 状态 %1。</translation>
    </message>
</context>
<context>
    <name>dvx_sdk::HttpConnection</name>
    <message>
        <source>The device shows another certificate than the one that was accepted.</source>
        <translation>设备出示的证书与已接受的证书不同。</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsSelFromTreeDlg</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Check at least one channel.</source>
        <translation>请至少勾选一个通道。</translation>
    </message>
</context>
<context>
    <name>qarn_base::AbilityDevsTree</name>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>There is no device yet. Add one on the Devices page.</source>
        <translation>暂无设备。请在“设备”页面添加。</translation>
    </message>
    <message>
        <source>No device offers this function.</source>
        <translation>没有设备支持此功能。</translation>
    </message>
    <message>
        <source>%1 (offline)</source>
        <translation>%1（离线）</translation>
    </message>
</context>
<context>
    <name>qarn_base::BaseTools</name>
    <message>
        <source>Male</source>
        <translation>男</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>女</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
</context>
<context>
    <name>qarn_base::DatetimeSpanSelWt</name>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The clock change skips this start time. Choose another one.</source>
        <translation>夏令时切换跳过了该开始时间。请选择其他时间。</translation>
    </message>
    <message>
        <source>The clock change skips this end time. Choose another one.</source>
        <translation>夏令时切换跳过了该结束时间。请选择其他时间。</translation>
    </message>
    <message>
        <source>The end must not be before the start.</source>
        <translation>结束时间不能早于开始时间。</translation>
    </message>
    <message>
        <source>The period must not be longer than %1.</source>
        <translation>时间段不能超过 %1。</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>qarn_base::ItemModifyDlg</name>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Add continuously</source>
        <translation>连续添加</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The name must not be blank.</source>
        <translation>名称不能为空。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already taken. Choose another name.</source>
        <translation>“%1”已被使用。请选择其他名称。</translation>
    </message>
</context>
<context>
    <name>qarn_base::OperBt</name>
    <message>
        <source>add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>qarn_base::PageEditWt</name>
    <message>
        <source>first page</source>
        <translation>首页</translation>
    </message>
    <message>
        <source>previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>page</source>
        <translation>页</translation>
    </message>
    <message>
        <source>number of pages</source>
        <translation>总页数</translation>
    </message>
    <message>
        <source>next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>last page</source>
        <translation>末页</translation>
    </message>
    <message>
        <source>rows a page</source>
        <translation>每页行数</translation>
    </message>
    <message>
        <source>number of persons</source>
        <translation>人员总数</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>共</translation>
    </message>
    <message>
        <source>per page</source>
        <translation>条/页</translation>
    </message>
</context>
<context>
    <name>qarn_base::PersonTree</name>
    <message>
        <source>Organizations</source>
        <translation>组织</translation>
    </message>
</context>
<context>
    <name>qarn_base::SearchBox</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>qarn_base::SelDirLineEt</name>
    <message>
        <source>Press Return to choose a path</source>
        <translation>按回车键选择路径</translation>
    </message>
</context>
<context>
    <name>qarn_base::TimeSpaceLineEt</name>
    <message>
        <source>Press Return to change the period</source>
        <translation>按回车键修改时间段</translation>
    </message>
</context>
<context>
    <name>qarn_base::TitleBar</name>
    <message>
        <source>minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>qarn_base::XMessageBox</name>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>qarn_data</name>
    <message>
        <source>It is a folder. Choose a file.</source>
        <translation>这是一个文件夹。请选择文件。</translation>
    </message>
    <message>
        <source>The file cannot be written. Check the disk and your rights there.</source>
        <translation>无法写入文件。请检查磁盘及您的权限。</translation>
    </message>
    <message>
        <source>%1: it has no id.</source>
        <translation>%1：缺少标识。</translation>
    </message>
    <message>
        <source>%1: the id is taken.</source>
        <translation>%1：标识已被使用。</translation>
    </message>
    <message>
        <source>%1: the organization above it does not exist; choose another one.</source>
        <translation>%1：上级组织不存在；请选择其他组织。</translation>
    </message>
    <message>
        <source>%1 no longer exists.</source>
        <translation>%1 已不存在。</translation>
    </message>
    <message>
        <source>%1 is the top organization and stays at the top.</source>
        <translation>%1 是顶级组织，不能移动。</translation>
    </message>
    <message>
        <source>%1 cannot stand below itself; choose another organization.</source>
        <translation>%1 不能置于自身之下；请选择其他组织。</translation>
    </message>
    <message>
        <source>%1 is the top organization and cannot be deleted.</source>
        <translation>%1 是顶级组织，不能删除。</translation>
    </message>
    <message>
        <source>%1 still holds persons; move or delete them first.</source>
        <translation>%1 中仍有人员；请先移动或删除。</translation>
    </message>
    <message>
        <source>%1 still holds %2; delete or move that first.</source>
        <translation>%1 下仍有 %2；请先删除或移动。</translation>
    </message>
    <message>
        <source>The organization could not be added</source>
        <translation>无法添加组织</translation>
    </message>
    <message>
        <source>The organization could not be changed</source>
        <translation>无法修改组织</translation>
    </message>
    <message>
        <source>Organizations could not be deleted</source>
        <translation>无法删除组织</translation>
    </message>
    <message>
        <source>The organization could not be made</source>
        <translation>无法创建组织</translation>
    </message>
    <message>
        <source>The custom fields could not be changed</source>
        <translation>无法修改自定义字段</translation>
    </message>
    <message>
        <source>Persons could not be moved</source>
        <translation>无法移动人员</translation>
    </message>
    <message>
        <source>The organization does not exist. Choose another one.</source>
        <translation>组织不存在。请选择其他组织。</translation>
    </message>
    <message>
        <source>And %n more.</source>
        <translation>以及另外 %n 个。</translation>
    </message>
    <message>
        <source>Persons could not be added</source>
        <translation>无法添加人员</translation>
    </message>
    <message>
        <source>%1 is no longer in the register.</source>
        <translation>%1 已不在人员库中。</translation>
    </message>
    <message>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1：编号已被使用；请选择其他编号。</translation>
    </message>
    <message>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1：组织不存在；请选择其他组织。</translation>
    </message>
    <message>
        <source>%1 is in that organization already.</source>
        <translation>%1 已在该组织中。</translation>
    </message>
    <message>
        <source>The person could not be updated</source>
        <translation>无法更新人员</translation>
    </message>
    <message>
        <source>Persons could not be deleted</source>
        <translation>无法删除人员</translation>
    </message>
    <message>
        <source>The folder does not exist. Create it or choose another place.</source>
        <translation>文件夹不存在。请创建或选择其他位置。</translation>
    </message>
    <message>
        <source>Its folder is not a folder. Choose another place.</source>
        <translation>所在位置不是文件夹。请选择其他位置。</translation>
    </message>
    <message>
        <source>The folder is read-only, and the store needs room beside its file. Give yourself the right to write there.</source>
        <translation>文件夹为只读，而人员库需要在文件旁写入。请授予写入权限。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>The file is not a person register. Choose another file.</source>
        <translation>该文件不是人员库。请选择其他文件。</translation>
    </message>
    <message>
        <source>The file belongs to another program. Choose another file.</source>
        <translation>该文件属于其他程序。请选择其他文件。</translation>
    </message>
    <message>
        <source>The file was written by a newer version (%1, this one knows %2). Update this program.</source>
        <translation>该文件由较新版本写入（%1，本程序支持 %2）。请更新本程序。</translation>
    </message>
    <message>
        <source>The file is damaged: its end is missing. Restore it from a backup.</source>
        <translation>文件已损坏：结尾缺失。请从备份恢复。</translation>
    </message>
    <message>
        <source>No file is named.</source>
        <translation>未指定文件。</translation>
    </message>
    <message>
        <source>It is not a regular file. Choose another file.</source>
        <translation>这不是普通文件。请选择其他文件。</translation>
    </message>
    <message>
        <source>The file cannot be read. Give yourself the right to read it.</source>
        <translation>无法读取文件。请授予读取权限。</translation>
    </message>
    <message>
        <source>The file is read-only. Give yourself the right to write it.</source>
        <translation>文件为只读。请授予写入权限。</translation>
    </message>
    <message>
        <source>The system gives no random numbers.</source>
        <translation>系统无法提供随机数。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be made. Check your rights in its folder.</source>
        <translation>无法创建密钥文件 %1。请检查所在文件夹的权限。</translation>
    </message>
    <message>
        <source>The key file %1 cannot be read or is damaged. Restore it from a backup.</source>
        <translation>密钥文件 %1 无法读取或已损坏。请从备份恢复。</translation>
    </message>
</context>
<context>
    <name>qarn_data::Admission</name>
    <message>
        <source>%1: the id is taken.</source>
        <translation>%1：标识已被使用。</translation>
    </message>
    <message>
        <source>%1: the serial number is taken; choose another one.</source>
        <translation>%1：编号已被使用；请选择其他编号。</translation>
    </message>
    <message>
        <source>%1: the organization does not exist; choose another one.</source>
        <translation>%1：组织不存在；请选择其他组织。</translation>
    </message>
</context>
<context>
    <name>qarn_data::DeviceRegistry</name>
    <message>
        <source>The device could not be saved</source>
        <translation>无法保存设备</translation>
    </message>
    <message>
        <source>It has no id.</source>
        <translation>缺少标识。</translation>
    </message>
    <message>
        <source>The device could not be removed</source>
        <translation>无法移除设备</translation>
    </message>
</context>
<context>
    <name>qarn_data::Move</name>
    <message>
        <source>%1 is no longer in the register.</source>
        <translation>%1 已不在人员库中。</translation>
    </message>
</context>
<context>
    <name>qarn_data::Register</name>
    <message>
        <source>The store %1 cannot be opened. %2</source>
        <translation>无法打开人员库 %1。%2</translation>
    </message>
    <message>
        <source>No store is open.</source>
        <translation>未打开人员库。</translation>
    </message>
    <message>
        <source>It is the open store itself. Choose another file.</source>
        <translation>这正是已打开的人员库。请选择其他文件。</translation>
    </message>
    <message>
        <source>The backup %1 cannot be made. %2</source>
        <translation>无法创建备份 %1。%2</translation>
    </message>
    <message>
        <source>What others change in the register cannot be shown. %1</source>
        <translation>无法显示他人对人员库所做的更改。%1</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqlStore</name>
    <message>
        <source>The file was written by a newer version. Update this program.</source>
        <translation>该文件由较新版本写入。请更新本程序。</translation>
    </message>
</context>
<context>
    <name>qarn_data::SqliteDialect</name>
    <message>
        <source>Another program is using it. Try again when that has finished.</source>
        <translation>其他程序正在使用。请待其完成后重试。</translation>
    </message>
    <message>
        <source>It is read-only. Give yourself the right to write the file and its folder.</source>
        <translation>只读。请授予文件及其文件夹的写入权限。</translation>
    </message>
    <message>
        <source>The disk is full. Free some space and try again.</source>
        <translation>磁盘已满。请释放空间后重试。</translation>
    </message>
    <message>
        <source>The disk does not take or give the data (%1). Check the disk and its free space.</source>
        <translation>磁盘读写失败（%1）。请检查磁盘及剩余空间。</translation>
    </message>
    <message>
        <source>The file is damaged (%1). Restore it from a backup.</source>
        <translation>文件已损坏（%1）。请从备份恢复。</translation>
    </message>
    <message>
        <source>The file is not a person register. Choose another file.</source>
        <translation>该文件不是人员库。请选择其他文件。</translation>
    </message>
    <message>
        <source>The file cannot be opened. Check its folder and your rights there.</source>
        <translation>无法打开文件。请检查其文件夹及您的权限。</translation>
    </message>
    <message>
        <source>The database says: %1.</source>
        <translation>数据库提示：%1。</translation>
    </message>
</context>
<context>
    <name>qarn_data::WriteSession</name>
    <message>
        <source>No store is open.</source>
        <translation>未打开人员库。</translation>
    </message>
    <message>
        <source>%1 (%2). %3</source>
        <translation>%1（%2）。%3</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ChangePersonsOrganizationDlg</name>
    <message>
        <source>Organization Name</source>
        <translation>组织名称</translation>
    </message>
    <message>
        <source>Remove from the original organization</source>
        <translation>从原组织中移除</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Change Persons Organization</source>
        <translation>更改人员所属组织</translation>
    </message>
    <message>
        <source>Please Select organization to move persons</source>
        <translation>请选择要移动到的组织</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::CustomFieldsModifyDlg</name>
    <message>
        <source>defined personnel information fields,such as position, specialty, etc</source>
        <translation>定义人员信息字段，例如职位、专业等</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>字段名称</translation>
    </message>
    <message>
        <source>Oper</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Custom Fields Set</source>
        <translation>自定义字段设置</translation>
    </message>
    <message>
        <source>the maximum number of custom fields has been reached</source>
        <translation>自定义字段数量已达上限</translation>
    </message>
    <message>
        <source>Custom Field</source>
        <translation>自定义字段</translation>
    </message>
    <message>
        <source>Do you want to delete this custom field?</source>
        <translation>确定要删除该自定义字段吗？</translation>
    </message>
    <message>
        <source>custom field name has exist</source>
        <translation>自定义字段名称已存在</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ExportPersonsDlg</name>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Person Info</source>
        <translation>人员信息</translation>
    </message>
    <message>
        <source>Person Face</source>
        <translation>人员人脸</translation>
    </message>
    <message>
        <source>Export child organization persons</source>
        <translation>导出下级组织人员</translation>
    </message>
    <message>
        <source>Sel expot colums</source>
        <translation>选择导出列</translation>
    </message>
    <message>
        <source>Sel All Columns</source>
        <translation>选择所有列</translation>
    </message>
    <message>
        <source>Serail Num</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Person Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>组织</translation>
    </message>
    <message>
        <source>Gender</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>邮箱</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Identity ID</source>
        <translation>证件号</translation>
    </message>
    <message>
        <source>Valid Time</source>
        <translation>生效时间</translation>
    </message>
    <message>
        <source>Invalid Time</source>
        <translation>失效时间</translation>
    </message>
    <message>
        <source>Column order</source>
        <translation>列顺序</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>*Serail Num</source>
        <translation>*编号</translation>
    </message>
    <message>
        <source>*Person Name</source>
        <translation>*姓名</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>Please select export columns</source>
        <translation>请选择导出列</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::FaceImageModifyWt</name>
    <message>
        <source>Add Face</source>
        <translation>添加人脸</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Click to change face Iamge</source>
        <translation>点击更换人脸图片</translation>
    </message>
    <message>
        <source>Select face image</source>
        <translation>选择人脸图片</translation>
    </message>
    <message>
        <source>Change face image</source>
        <translation>更换人脸图片</translation>
    </message>
    <message>
        <source>Images (*.jpg)</source>
        <translation>图片 (*.jpg)</translation>
    </message>
    <message>
        <source>Do you want to delete the current face image?</source>
        <translation>确定要删除当前人脸图片吗？</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsDlg</name>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Person Info</source>
        <translation>人员信息</translation>
    </message>
    <message>
        <source>Person Face</source>
        <translation>人员人脸</translation>
    </message>
    <message>
        <source>Import File</source>
        <translation>导入文件</translation>
    </message>
    <message>
        <source>Download personnel import template</source>
        <translation>下载人员导入模板</translation>
    </message>
    <message>
        <source>Naming Rules</source>
        <translation>命名规则</translation>
    </message>
    <message>
        <source>Serial Num_Person Name_Sex</source>
        <translation>编号_姓名_性别</translation>
    </message>
    <message>
        <source>SerialNum</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>PersonName</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>1.Single picture less than 200K
2.Format only supports jpg
3.sex:Male,Female</source>
        <translation>1.单张图片小于200K
2.仅支持jpg格式
3.性别：男,女</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Import persons</source>
        <translation>导入人员</translation>
    </message>
    <message>
        <source>Serial Num</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Person Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Select Person faces dir</source>
        <translation>选择人脸图片目录</translation>
    </message>
    <message>
        <source>Select Person info file</source>
        <translation>选择人员信息文件</translation>
    </message>
    <message>
        <source>Please select person faces dir</source>
        <translation>请选择人脸图片目录</translation>
    </message>
    <message>
        <source>Please select person info file</source>
        <translation>请选择人员信息文件</translation>
    </message>
    <message>
        <source>Please set naming rules</source>
        <translation>请设置命名规则</translation>
    </message>
    <message>
        <source>Download Person import template</source>
        <translation>下载人员导入模板</translation>
    </message>
    <message>
        <source>Download import person template finished</source>
        <translation>人员导入模板下载完成</translation>
    </message>
    <message>
        <source>Download person import template failed</source>
        <translation>人员导入模板下载失败</translation>
    </message>
    <message>
        <source>Rules:</source>
        <translation>规则：</translation>
    </message>
    <message>
        <source>1. Star is required</source>
        <translation>1. 星号为必填项</translation>
    </message>
    <message>
        <source>2. 1:Male 2:Female</source>
        <translation>2. 1:男 2:女</translation>
    </message>
    <message>
        <source>3. Date Format:YYYY-MM-DD</source>
        <translation>3. 日期格式:YYYY-MM-DD</translation>
    </message>
    <message>
        <source>4. Hierarchical use / segmentation of the organization</source>
        <translation>4. 组织层级使用 / 分隔</translation>
    </message>
    <message>
        <source>*Serial Num</source>
        <translation>*编号</translation>
    </message>
    <message>
        <source>*Person Name</source>
        <translation>*姓名</translation>
    </message>
    <message>
        <source>*Organization</source>
        <translation>*组织</translation>
    </message>
    <message>
        <source>*Sex</source>
        <translation>*性别</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>邮箱</translation>
    </message>
    <message>
        <source>Valid Time</source>
        <translation>生效时间</translation>
    </message>
    <message>
        <source>Invalid Time</source>
        <translation>失效时间</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::ImportPersonsThread</name>
    <message>
        <source>Failed to open the file containing face information</source>
        <translation>打开包含人脸信息的文件失败</translation>
    </message>
    <message>
        <source>Failed to read %1: %2. No new persons were added; import the file again</source>
        <translation>读取 %1 失败：%2。未添加新人员；请重新导入该文件</translation>
    </message>
    <message>
        <source>The directory does not contain face images</source>
        <translation>该目录不包含人脸图片</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>男</translation>
    </message>
    <message>
        <source>import persons finished(Existing persons updated the information)</source>
        <translation>导入人员完成(已存在的人员已更新信息)</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonCustomInfoWt</name>
    <message>
        <source>Please add custom field first</source>
        <translation>请先添加自定义字段</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonExtraInfoWt</name>
    <message>
        <source>Birth Date</source>
        <translation>出生日期</translation>
    </message>
    <message>
        <source>yyyy-MM-dd</source>
        <translation>yyyy-MM-dd</translation>
    </message>
    <message>
        <source>Identity Type</source>
        <translation>证件类型</translation>
    </message>
    <message>
        <source>identity Chinese id</source>
        <translation>居民身份证</translation>
    </message>
    <message>
        <source>identity student id</source>
        <translation>学生证</translation>
    </message>
    <message>
        <source>identity officer id</source>
        <translation>军官证</translation>
    </message>
    <message>
        <source>identity driver id</source>
        <translation>驾驶证</translation>
    </message>
    <message>
        <source>identity passport id</source>
        <translation>护照</translation>
    </message>
    <message>
        <source>identity foreigner in china id</source>
        <translation>外国人居留证</translation>
    </message>
    <message>
        <source>identity hongkong or macao access id</source>
        <translation>港澳通行证</translation>
    </message>
    <message>
        <source>identity hongkong or macao live id</source>
        <translation>港澳居民居住证</translation>
    </message>
    <message>
        <source>identity taiwan live id</source>
        <translation>台湾居民居住证</translation>
    </message>
    <message>
        <source>identity other</source>
        <translation>其他证件</translation>
    </message>
    <message>
        <source>Identity ID</source>
        <translation>证件号</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>职业</translation>
    </message>
    <message>
        <source>Employ Date</source>
        <translation>入职日期</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyDlg</name>
    <message>
        <source>Add continuously</source>
        <translation>连续添加</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Add Person</source>
        <translation>添加人员</translation>
    </message>
    <message>
        <source>Edit Person</source>
        <translation>编辑人员</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoModifyWt</name>
    <message>
        <source>Basic Info</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Name</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;姓名</translation>
    </message>
    <message>
        <source>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;Serail Num</source>
        <translation>&lt;font color=&quot;#dc4d4d&quot;&gt;* &lt;/font&gt;编号</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>Male</source>
        <translation>男</translation>
    </message>
    <message>
        <source>Female</source>
        <translation>女</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>邮箱</translation>
    </message>
    <message>
        <source>Phone Num</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Valid Time Range</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Face image</source>
        <translation>人脸图片</translation>
    </message>
    <message>
        <source>Face image 1</source>
        <translation>人脸图片 1</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Face image 2</source>
        <translation>人脸图片 2</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Face image 3</source>
        <translation>人脸图片 3</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>Custom Info</source>
        <translation>自定义信息</translation>
    </message>
    <message>
        <source>Extra Info</source>
        <translation>附加信息</translation>
    </message>
    <message>
        <source>person name can&apos;t be empty or all blank space!</source>
        <translation>姓名不能为空或全为空格！</translation>
    </message>
    <message>
        <source>serail num can&apos;t be empty or all blank space!</source>
        <translation>编号不能为空或全为空格！</translation>
    </message>
    <message>
        <source>serail num has exist!</source>
        <translation>编号已存在！</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonInfoWt</name>
    <message>
        <source>edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>select %1</source>
        <translation>选择 %1</translation>
    </message>
    <message>
        <source>edit %1</source>
        <translation>编辑 %1</translation>
    </message>
    <message>
        <source>delete %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Do you want to delete the person: %1?</source>
        <translation>确定要删除人员：%1 吗？</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrForm</name>
    <message>
        <source>PersonMgrForm</source>
        <translation>人员管理</translation>
    </message>
    <message>
        <source>Organizations</source>
        <translation>组织</translation>
    </message>
    <message>
        <source>add organization</source>
        <translation>添加组织</translation>
    </message>
    <message>
        <source>delete organization</source>
        <translation>删除组织</translation>
    </message>
    <message>
        <source>display child organization person</source>
        <translation>显示下级组织人员</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Please input name...</source>
        <translation>请输入姓名...</translation>
    </message>
    <message>
        <source>Serial Num</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Please input serail num...</source>
        <translation>请输入编号...</translation>
    </message>
    <message>
        <source>Valid Range</source>
        <translation>有效性</translation>
    </message>
    <message>
        <source>Valid And Invalid</source>
        <translation>有效和无效</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Add Person</source>
        <translation>添加人员</translation>
    </message>
    <message>
        <source>Del Person</source>
        <translation>删除人员</translation>
    </message>
    <message>
        <source>Move Person</source>
        <translation>移动人员</translation>
    </message>
    <message>
        <source>Import Person</source>
        <translation>导入人员</translation>
    </message>
    <message>
        <source>Export Person</source>
        <translation>导出人员</translation>
    </message>
    <message>
        <source>Send to Dev</source>
        <translation>下发到设备</translation>
    </message>
    <message>
        <source>Sync From Dev</source>
        <translation>从设备同步</translation>
    </message>
    <message>
        <source>CustomProperty</source>
        <translation>自定义属性</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Face Image</source>
        <translation>人脸图片</translation>
    </message>
    <message>
        <source>Sex</source>
        <translation>性别</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>组织</translation>
    </message>
    <message>
        <source>Is Valid</source>
        <translation>是否有效</translation>
    </message>
    <message>
        <source>Oper</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Please select which organization to add person first</source>
        <translation>请先选择要添加人员的组织</translation>
    </message>
    <message>
        <source>Delete Checked Persons</source>
        <translation>删除勾选人员</translation>
    </message>
    <message>
        <source>Delete All Persons</source>
        <translation>删除全部人员</translation>
    </message>
    <message>
        <source>Please select persons to delete</source>
        <translation>请选择要删除的人员</translation>
    </message>
    <message>
        <source>Do you want to delete selected persons?</source>
        <translation>确定要删除选中的人员吗？</translation>
    </message>
    <message>
        <source>There is no person to delete in the table</source>
        <translation>列表中没有可删除的人员</translation>
    </message>
    <message>
        <source>Do you want to delete all the persons in the table?</source>
        <translation>确定要删除列表中的所有人员吗？</translation>
    </message>
    <message>
        <source>Please select persons to move</source>
        <translation>请选择要移动的人员</translation>
    </message>
    <message>
        <source>Exporting Persons...</source>
        <translation>正在导出人员...</translation>
    </message>
    <message>
        <source>Synchronize persons to devs finished</source>
        <translation>同步人员到设备完成</translation>
    </message>
    <message>
        <source>sync persons time out</source>
        <translation>同步人员超时</translation>
    </message>
    <message>
        <source>Please select organization to synchronize</source>
        <translation>请选择要同步的组织</translation>
    </message>
    <message>
        <source>Please check persons to synchronize</source>
        <translation>请勾选要同步的人员</translation>
    </message>
    <message>
        <source>Please select organization to synchronize faces from devs</source>
        <translation>请选择从设备同步人脸的组织</translation>
    </message>
    <message>
        <source>Synchronize faces from Devs</source>
        <translation>从设备同步人脸</translation>
    </message>
    <message>
        <source>Please Check whick devs synchronize faces from</source>
        <translation>请勾选要从哪些设备同步人脸</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Synchronize persons from devs finished</source>
        <translation>从设备同步人员完成</translation>
    </message>
    <message>
        <source>Please select whick organization to export persons</source>
        <translation>请选择要导出人员的组织</translation>
    </message>
    <message>
        <source>Export Organization[%1]Persons</source>
        <translation>导出组织[%1]人员</translation>
    </message>
    <message>
        <source>Export Persons</source>
        <translation>导出人员</translation>
    </message>
    <message>
        <source>Select Export Path</source>
        <translation>选择导出路径</translation>
    </message>
    <message>
        <source>path cannot contain=</source>
        <translation>路径不能包含=</translation>
    </message>
    <message>
        <source>Export persons finished</source>
        <translation>导出人员完成</translation>
    </message>
    <message>
        <source>Export persons failed</source>
        <translation>导出人员失败</translation>
    </message>
    <message>
        <source>Importing Persons...</source>
        <translation>正在导入人员...</translation>
    </message>
    <message>
        <source>Please select which organization to import persons</source>
        <translation>请选择要导入人员的组织</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonMgrTree</name>
    <message>
        <source>Please select which organization to add to</source>
        <translation>请选择要添加到的组织</translation>
    </message>
    <message>
        <source>Please select which organization to delete</source>
        <translation>请选择要删除的组织</translation>
    </message>
    <message>
        <source>root organization can not be deleted</source>
        <translation>根组织不能删除</translation>
    </message>
    <message>
        <source>New Organization</source>
        <translation>新组织</translation>
    </message>
    <message>
        <source>Add Organization</source>
        <translation>添加组织</translation>
    </message>
    <message>
        <source>Edit Organization</source>
        <translation>编辑组织</translation>
    </message>
    <message>
        <source>organization has persons, can not be deleted</source>
        <translation>组织下有人员，不能删除</translation>
    </message>
    <message>
        <source>Do you want to delete the select organization?</source>
        <translation>确定要删除选中的组织吗？</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::PersonsTableWt</name>
    <message>
        <source>No persons to show. Select another organization, change the filters, or add persons.</source>
        <translation>没有可显示的人员。请选择其他组织、更改筛选条件或添加人员。</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesThread</name>
    <message>
        <source>getting %1 faces....</source>
        <translation>正在获取 %1 的人脸....</translation>
    </message>
    <message>
        <source>get %1 faces failed</source>
        <translation>获取 %1 的人脸失败</translation>
    </message>
    <message>
        <source>deleting %1 faces....</source>
        <translation>正在删除 %1 的人脸....</translation>
    </message>
    <message>
        <source>adding %1 faces...</source>
        <translation>正在添加人脸到 %1...</translation>
    </message>
    <message>
        <source>del %1 face from %2 failed</source>
        <translation>从 %2 删除 %1 的人脸失败</translation>
    </message>
    <message>
        <source>add %1 face to %2 failed</source>
        <translation>添加 %1 的人脸到 %2 失败</translation>
    </message>
</context>
<context>
    <name>qarn_personMgr::SynchronizeFacesToDevsDlg</name>
    <message>
        <source>Synchronize</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Checked Presons</source>
        <translation>勾选的人员</translation>
    </message>
    <message>
        <source>Sel Organization</source>
        <translation>选中的组织</translation>
    </message>
    <message>
        <source>Child org persons</source>
        <translation>下级组织人员</translation>
    </message>
    <message>
        <source>Delete Persons that deleted from dvx4700 platform</source>
        <translation>删除平台上已删除的人员</translation>
    </message>
    <message>
        <source>Dev Sel</source>
        <translation>选择设备</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Synchronize faces to Devs</source>
        <translation>同步人脸到设备</translation>
    </message>
    <message>
        <source>Please Check whick devs to synchronize</source>
        <translation>请勾选要同步的设备</translation>
    </message>
</context>
<context>
    <name>qarn_worker::DictDef</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
</context>
</TS>
