<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ElidedTextLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>ExtendedWinFileDialog</name>
    <message>
        <source>File of Type</source>
        <translation>Archivos de tipo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>More ways to accept</source>
        <translation>Otras formas de aceptar</translation>
    </message>
    <message>
        <source>This choice is not accepted.</source>
        <translation>Esta elección no se acepta.</translation>
    </message>
</context>
<context>
    <name>HelpLauncher</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>The help for the topic &quot;%1&quot; could not be shown.</source>
        <translation>No se pudo mostrar la ayuda sobre el tema «%1».</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se encontró el archivo.
Compruebe que el nombre del archivo es correcto.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encontró la carpeta.
Compruebe que el nombre de la carpeta es correcto.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>morvane::DefaultSaveFileMessageHandler</name>
    <message>
        <source>File %1 already exists. Do you want to replace it?</source>
        <translation>El archivo %1 ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Unable to save file %1, check access permissions for the file and the parent directory. Do you want to try again and choose a different location?</source>
        <translation>No se puede guardar el archivo %1. Compruebe los permisos de acceso al archivo y a su carpeta. ¿Desea intentarlo de nuevo y elegir otra ubicación?</translation>
    </message>
    <message>
        <source>Unable to access file %1: %2. Do you want to try again and choose a different location?</source>
        <translation>No se puede acceder al archivo %1: %2. ¿Desea intentarlo de nuevo y elegir otra ubicación?</translation>
    </message>
</context>
<context>
    <name>morvane::ui::LaunchFileDialogOptions</name>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::PropertyAdapter</name>
    <message>
        <source>&quot;%1&quot; cannot be used here.</source>
        <translation>«%1» no se puede usar aquí.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::RefusalMark</name>
    <message>
        <source>The text is not an acceptable number.</source>
        <translation>El texto no es un número admisible.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TableCopyHandler</name>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>Copiar con &amp;encabezados</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TablePasteHandler</name>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
</context>
</TS>
