<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ElidedTextLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
</context>
<context>
    <name>ExtendedWinFileDialog</name>
    <message>
        <source>File of Type</source>
        <translation>ملفات من النوع</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;مساعدة</translation>
    </message>
    <message>
        <source>More ways to accept</source>
        <translation>طرق أخرى للقبول</translation>
    </message>
    <message>
        <source>This choice is not accepted.</source>
        <translation>هذا الاختيار غير مقبول.</translation>
    </message>
</context>
<context>
    <name>HelpLauncher</name>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>The help for the topic &quot;%1&quot; could not be shown.</source>
        <translation>تعذّر عرض المساعدة للموضوع ⁦%1⁩.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>⁦%1⁩
لم يُعثر على الملف.
يُرجى التحقق من صحة اسم الملف.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>⁦%1⁩
لم يُعثر على المجلد.
يُرجى التحقق من صحة اسم المجلد.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>⁦%1⁩ موجود بالفعل.
هل تريد استبداله؟</translation>
    </message>
</context>
<context>
    <name>morvane::DefaultSaveFileMessageHandler</name>
    <message>
        <source>File %1 already exists. Do you want to replace it?</source>
        <translation>الملف ⁦%1⁩ موجود بالفعل. هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>Unable to save file %1, check access permissions for the file and the parent directory. Do you want to try again and choose a different location?</source>
        <translation>تعذّر حفظ الملف ⁦%1⁩، تحقق من أذونات الوصول إلى الملف وإلى المجلد الأصل. هل تريد المحاولة مرة أخرى واختيار موقع آخر؟</translation>
    </message>
    <message>
        <source>Unable to access file %1: %2. Do you want to try again and choose a different location?</source>
        <translation>تعذّر الوصول إلى الملف ⁦%1⁩: ⁦%2⁩. هل تريد المحاولة مرة أخرى واختيار موقع آخر؟</translation>
    </message>
</context>
<context>
    <name>morvane::ui::LaunchFileDialogOptions</name>
    <message>
        <source>All files (*)</source>
        <translation>جميع الملفات (*)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::PropertyAdapter</name>
    <message>
        <source>&quot;%1&quot; cannot be used here.</source>
        <translation>لا يمكن استخدام ⁦%1⁩ هنا.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::RefusalMark</name>
    <message>
        <source>The text is not an acceptable number.</source>
        <translation>النص ليس رقمًا مقبولًا.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TableCopyHandler</name>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>نسخ مع ال&amp;عناوين</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TablePasteHandler</name>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
</context>
</TS>
