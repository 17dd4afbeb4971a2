<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CollapsibleGroupBoxBasic</name>
    <message>
        <source>Ctrl (or Alt)-click to toggle all</source>
        <translation>Strg- (oder Alt-)Klick: alle auf- oder zuklappen</translation>
    </message>
    <message>
        <source>Shift-click to expand, then collapse others</source>
        <translation>Umschalt-Klick: aufklappen und alle anderen zuklappen</translation>
    </message>
</context>
<context>
    <name>FramelessDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>FramelessFileDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Save failed</source>
        <translation>Speichern fehlgeschlagen</translation>
    </message>
    <message>
        <source>The file name cannot contain any of the following characters</source>
        <translation>Der Dateiname darf keines der folgenden Zeichen enthalten: </translation>
    </message>
</context>
<context>
    <name>FramelessMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Save and Exit</source>
        <translation>Sichern, Ende</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Wechseln</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::CustomLayerTableWidget</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Linienart</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::DetailButton</name>
    <message>
        <source>Show Details...</source>
        <translation>Details einblenden …</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Details ausblenden …</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::EditComboBox</name>
    <message>
        <source>Opens or closes the list</source>
        <translation>Öffnet oder schließt die Liste</translation>
    </message>
    <message>
        <source>Show all entries</source>
        <translation>Alle Einträge zeigen</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::FramelessMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ja, &amp;alle</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;ein, keine</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&lt;p&gt;Qt is a C++ toolkit for cross-platform application development.&lt;/p&gt;&lt;p&gt;Qt provides single-source portability across all major desktop operating systems. It is also available for embedded Linux and other embedded and mobile operating systems.&lt;/p&gt;&lt;p&gt;Qt is available under multiple licensing options designed to accommodate the needs of our various users.&lt;/p&gt;&lt;p&gt;Qt licensed under our commercial license agreement is appropriate for development of proprietary/commercial software where you do not want to share any source code with third parties or otherwise cannot comply with the terms of GNU (L)GPL.&lt;/p&gt;&lt;p&gt;Qt licensed under GNU (L)GPL is appropriate for the development of Qt&amp;nbsp;applications provided you can comply with the terms and conditions of the respective licenses.&lt;/p&gt;&lt;p&gt;Please see &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt; for an overview of Qt licensing.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd and other contributors.&lt;/p&gt;&lt;p&gt;Qt and the Qt logo are trademarks of The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt is The Qt Company Ltd product developed as an open source project. See &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt; for more information.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Qt ist ein C++-Toolkit für die plattformübergreifende Anwendungsentwicklung.&lt;/p&gt;&lt;p&gt;Qt ermöglicht die Übertragbarkeit einer einzigen Quelle auf alle wichtigen Desktop-Betriebssysteme. Es ist auch für Embedded Linux und andere eingebettete und mobile Betriebssysteme verfügbar.&lt;/p&gt;&lt;p&gt;Qt ist unter mehreren Lizenzen verfügbar, die den Bedürfnissen unserer verschiedenen Anwender entgegenkommen.&lt;/p&gt;&lt;p&gt;Qt unter unserer kommerziellen Lizenzvereinbarung eignet sich für die Entwicklung proprietärer/kommerzieller Software, wenn Sie keinen Quelltext mit Dritten teilen möchten oder die Bedingungen der GNU (L)GPL aus anderen Gründen nicht einhalten können.&lt;/p&gt;&lt;p&gt;Qt unter der GNU (L)GPL eignet sich für die Entwicklung von Qt&amp;nbsp;Anwendungen, sofern Sie die Bedingungen der jeweiligen Lizenzen einhalten können.&lt;/p&gt;&lt;p&gt;Einen Überblick über die Lizenzierung von Qt finden Sie unter &lt;a href=&quot;http://%2/&quot;&gt;%2&lt;/a&gt;.&lt;/p&gt;&lt;p&gt;Copyright (C) %1 The Qt Company Ltd und andere Beitragende.&lt;/p&gt;&lt;p&gt;Qt und das Qt-Logo sind Marken von The Qt Company Ltd.&lt;/p&gt;&lt;p&gt;Qt ist ein Produkt von The Qt Company Ltd, das als Open-Source-Projekt entwickelt wird. Weitere Informationen finden Sie unter &lt;a href=&quot;http://%3/&quot;&gt;%3&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Über Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Über Qt&lt;/h3&gt;&lt;p&gt;Dieses Programm verwendet Qt-Version %1.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::FramelessProcessDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::TalvoDoubleSlider</name>
    <message>
        <source>Lower value</source>
        <translation>Unterer Wert</translation>
    </message>
    <message>
        <source>Upper value</source>
        <translation>Oberer Wert</translation>
    </message>
</context>
<context>
    <name>LM::Widgets::VantoroFramelessDialogPrivate</name>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet …</translation>
    </message>
</context>
<context>
    <name>PointListPickingDlg</name>
    <message>
        <source>stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>By layer</source>
        <translation>Wie Ebene</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Dark Red</source>
        <translation>Dunkelrot</translation>
    </message>
    <message>
        <source>Dark Green</source>
        <translation>Dunkelgrün</translation>
    </message>
    <message>
        <source>Dark Blue</source>
        <translation>Dunkelblau</translation>
    </message>
    <message>
        <source>Dark Cyan</source>
        <translation>Dunkelcyan</translation>
    </message>
    <message>
        <source>Dark Magenta</source>
        <translation>Dunkelmagenta</translation>
    </message>
    <message>
        <source>Dark Yellow</source>
        <translation>Dunkelgelb</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Light Gray</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>TalvoDoubleInputDlg</name>
    <message>
        <source>Statistical Outlier Removal</source>
        <translation>Statistische Ausreißerentfernung</translation>
    </message>
    <message>
        <source>Video Data</source>
        <translation>Videodaten</translation>
    </message>
</context>
<context>
    <name>TalvoSplashScreen</name>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen …</translation>
    </message>
</context>
<context>
    <name>vantoroframelesswaitdialog</name>
    <message>
        <source>loading...</source>
        <translation>Wird geladen …</translation>
    </message>
</context>
<context>
    <name>vantorolframelessdialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
