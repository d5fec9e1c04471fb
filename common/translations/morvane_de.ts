<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ElidedTextLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>ExtendedWinFileDialog</name>
    <message>
        <source>File of Type</source>
        <translation>Dateien vom Typ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>More ways to accept</source>
        <translation>Weitere Möglichkeiten zum Annehmen</translation>
    </message>
    <message>
        <source>This choice is not accepted.</source>
        <translation>Diese Auswahl wird nicht angenommen.</translation>
    </message>
</context>
<context>
    <name>HelpLauncher</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The help for the topic &quot;%1&quot; could not be shown.</source>
        <translation>Die Hilfe zum Thema „%1“ konnte nicht angezeigt werden.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Datei nicht gefunden.
Bitte prüfen Sie, ob der Dateiname richtig ist.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ordner nicht gefunden.
Bitte prüfen Sie, ob der Name des Ordners richtig ist.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>morvane::DefaultSaveFileMessageHandler</name>
    <message>
        <source>File %1 already exists. Do you want to replace it?</source>
        <translation>Die Datei %1 ist bereits vorhanden. Möchten Sie sie ersetzen?</translation>
    </message>
    <message>
        <source>Unable to save file %1, check access permissions for the file and the parent directory. Do you want to try again and choose a different location?</source>
        <translation>Die Datei %1 kann nicht gespeichert werden. Prüfen Sie die Zugriffsrechte für die Datei und den übergeordneten Ordner. Möchten Sie es noch einmal versuchen und einen anderen Ort wählen?</translation>
    </message>
    <message>
        <source>Unable to access file %1: %2. Do you want to try again and choose a different location?</source>
        <translation>Auf die Datei %1 kann nicht zugegriffen werden: %2. Möchten Sie es noch einmal versuchen und einen anderen Ort wählen?</translation>
    </message>
</context>
<context>
    <name>morvane::ui::LaunchFileDialogOptions</name>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::PropertyAdapter</name>
    <message>
        <source>&quot;%1&quot; cannot be used here.</source>
        <translation>„%1“ kann hier nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::RefusalMark</name>
    <message>
        <source>The text is not an acceptable number.</source>
        <translation>Der Text ist keine zulässige Zahl.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TableCopyHandler</name>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>Mit &amp;Überschriften kopieren</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TablePasteHandler</name>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
</context>
</TS>
