<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ElidedTextLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ExtendedWinFileDialog</name>
    <message>
        <source>File of Type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>More ways to accept</source>
        <translation>其他确认方式</translation>
    </message>
    <message>
        <source>This choice is not accepted.</source>
        <translation>不接受此选择。</translation>
    </message>
</context>
<context>
    <name>HelpLauncher</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>The help for the topic &quot;%1&quot; could not be shown.</source>
        <translation>无法显示主题“%1”的帮助。</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
找不到文件。
请确认文件名是否正确。</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到文件夹。
请确认文件夹名称是否正确。</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
要替换它吗?</translation>
    </message>
</context>
<context>
    <name>morvane::DefaultSaveFileMessageHandler</name>
    <message>
        <source>File %1 already exists. Do you want to replace it?</source>
        <translation>文件 %1 已存在。要替换它吗?</translation>
    </message>
    <message>
        <source>Unable to save file %1, check access permissions for the file and the parent directory. Do you want to try again and choose a different location?</source>
        <translation>无法保存文件 %1,请检查该文件及其上级文件夹的访问权限。要重试并选择其他位置吗?</translation>
    </message>
    <message>
        <source>Unable to access file %1: %2. Do you want to try again and choose a different location?</source>
        <translation>无法访问文件 %1:%2。要重试并选择其他位置吗?</translation>
    </message>
</context>
<context>
    <name>morvane::ui::LaunchFileDialogOptions</name>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::PropertyAdapter</name>
    <message>
        <source>&quot;%1&quot; cannot be used here.</source>
        <translation>此处不能使用“%1”。</translation>
    </message>
</context>
<context>
    <name>morvane::ui::RefusalMark</name>
    <message>
        <source>The text is not an acceptable number.</source>
        <translation>该文本不是可接受的数字。</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TableCopyHandler</name>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>连同标题一起复制(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TablePasteHandler</name>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
</context>
</TS>
