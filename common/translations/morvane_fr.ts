<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ElidedTextLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
</context>
<context>
    <name>ExtendedWinFileDialog</name>
    <message>
        <source>File of Type</source>
        <translation>Fichiers du type</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>More ways to accept</source>
        <translation>Autres façons d’accepter</translation>
    </message>
    <message>
        <source>This choice is not accepted.</source>
        <translation>Ce choix n’est pas accepté.</translation>
    </message>
</context>
<context>
    <name>HelpLauncher</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>The help for the topic &quot;%1&quot; could not be shown.</source>
        <translation>L’aide sur le sujet « %1 » n’a pas pu être affichée.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Fichier introuvable.
Veuillez vérifier que le nom du fichier est correct.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dossier introuvable.
Veuillez vérifier que le nom du dossier est correct.</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
</context>
<context>
    <name>morvane::DefaultSaveFileMessageHandler</name>
    <message>
        <source>File %1 already exists. Do you want to replace it?</source>
        <translation>Le fichier %1 existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>Unable to save file %1, check access permissions for the file and the parent directory. Do you want to try again and choose a different location?</source>
        <translation>Impossible d’enregistrer le fichier %1. Vérifiez les droits d’accès au fichier et au dossier parent. Voulez-vous réessayer et choisir un autre emplacement ?</translation>
    </message>
    <message>
        <source>Unable to access file %1: %2. Do you want to try again and choose a different location?</source>
        <translation>Impossible d’accéder au fichier %1 : %2. Voulez-vous réessayer et choisir un autre emplacement ?</translation>
    </message>
</context>
<context>
    <name>morvane::ui::LaunchFileDialogOptions</name>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>morvane::ui::PropertyAdapter</name>
    <message>
        <source>&quot;%1&quot; cannot be used here.</source>
        <translation>« %1 » ne peut pas être utilisé ici.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::RefusalMark</name>
    <message>
        <source>The text is not an acceptable number.</source>
        <translation>Le texte n’est pas un nombre admissible.</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TableCopyHandler</name>
    <message>
        <source>Copy with &amp;Headers</source>
        <translation>Copier avec les en-&amp;têtes</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
</context>
<context>
    <name>morvane::ui::TablePasteHandler</name>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
</context>
</TS>
