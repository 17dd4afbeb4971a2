<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CollapsibleGroupBoxBasic</name>
    <message>
        <source>Ctrl (or Alt)-click to toggle all</source>
        <translation>按住 Ctrl（或 Alt）单击可全部展开或折叠</translation>
    </message>
    <message>
        <source>Shift-click to expand, then collapse others</source>
        <translation>按住 Shift 单击可展开此项并折叠其他项</translation>
    </message>
</context>
<context>
    <name>FramelessDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>FramelessFileDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>保存失败</translation>
    </message>
    <message>
        <source>The file name cannot contain any of the following characters</source>
        <translation>文件名不能包含下列任何字符：</translation>
    </message>
</context>
<context>
    <name>FramelessMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Save and Exit</source>
        <translation>保存并退出</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::CustomLayerTableWidget</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>线型</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::DetailButton</name>
    <message>
        <source>Show Details...</source>
        <translation>显示详细信息...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>隐藏详细信息...</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::EditComboBox</name>
    <message>
        <source>Opens or closes the list</source>
        <translation>打开或关闭列表</translation>
    </message>
    <message>
        <source>Show all entries</source>
        <translation>显示所有条目</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::FramelessMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>全部是(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>全部否(&amp;O)</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under multiple licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of GNU (L)GPL.&lt;/p&gt;&lt;p&gt;Qt licensed under GNU (L)GPL is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the respective licenses.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Qt 是一个用于跨平台应用程序开发的 C++ 工具包。&lt;/p&gt;&lt;p&gt;Qt 可让同一份源代码移植到所有主流桌面操作系统。它也可用于嵌入式 Linux 以及其他嵌入式和移动操作系统。&lt;/p&gt;&lt;p&gt;Qt 提供多种许可方式，以满足不同用户的需要。&lt;/p&gt;&lt;p&gt;如果您不希望与第三方共享任何源代码，或者因其他原因无法遵守 GNU (L)GPL 的条款，则按我们的商业许可协议授权的 Qt 适合开发专有/商业软件。&lt;/p&gt;&lt;p&gt;如果您能够遵守相应许可证的条款和条件，则按 GNU (L)GPL 授权的 Qt 适合开发 Qt&amp;nbsp;应用程序。&lt;/p&gt;&lt;p&gt;有关 Qt 许可的概述，请参阅 &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt;。&lt;/p&gt;&lt;p&gt;版权所有 (C) %1 The Qt Company Ltd 及其他贡献者。&lt;/p&gt;&lt;p&gt;Qt 和 Qt 徽标是 The Qt Company Ltd 的商标。&lt;/p&gt;&lt;p&gt;Qt 是 The Qt Company Ltd 作为开源项目开发的产品。更多信息请参阅 &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt;。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>关于 Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;关于 Qt&lt;/h3&gt;&lt;p&gt;本程序使用 Qt %1 版本。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::FramelessProcessDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::TalvoDoubleSlider</name>
    <message>
        <source>Lower value</source>
        <translation>下限值</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>上限值</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::VantoroFramelessDialogPrivate</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在启动...</translation>
    </message>
</context>
<context>
    <name>PointListPickingDlg</name>
    <message>
        <source>stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>By layer</source>
        <translation>随图层</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Dark Red</source>
        <translation>深红</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>深绿</translation>
    </message>
    <message>
        <source>Dark Blue</source>
        <translation>深蓝</translation>
    </message>
    <message>
        <source>Dark Cyan</source>
        <translation>深青</translation>
    </message>
    <message>
        <source>Dark Magenta</source>
        <translation>深品红</translation>
    </message>
    <message>
        <source>Dark Yellow</source>
        <translation>深黄</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>Light Gray</source>
        <translation>浅灰</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>TalvoDoubleInputDlg</name>
    <message>
        <source>Statistical Outlier Removal</source>
        <translation>统计离群点去除</translation>
    </message>
    <message>
        <source>Video Data</source>
        <translation>视频数据</translation>
    </message>
</context>
<context>
    <name>TalvoSplashScreen</name>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
</context>
<context>
    <name>vantoroframelesswaitdialog</name>
    <message>
        <source>loading...</source>
        <translation>正在加载...</translation>
    </message>
</context>
<context>
    <name>vantorolframelessdialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
