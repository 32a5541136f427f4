<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="10000">
        <source>&amp;File</source>
        <extracomment>Menu bar: File</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message id="10001">
        <source>&amp;New</source>
        <extracomment>Menu: File, New</extracomment>
        <translation>&amp;Neu</translation>
    </message>
    <message id="10002">
        <source>&amp;Open...</source>
        <extracomment>Menu: File, Open</extracomment>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message id="10003">
        <source>&amp;Save</source>
        <extracomment>Menu: File, Save</extracomment>
        <translation>&amp;Speichern</translation>
    </message>
    <message id="10004">
        <source>Save &amp;As...</source>
        <extracomment>Menu: File, Save As</extracomment>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message id="10010">
        <source>  &amp;VT</source>
        <extracomment>Menu: Mode, VT; two leading blanks as for Mainframe</extracomment>
        <translation>  &amp;VT</translation>
    </message>
    <message id="10017">
        <source>E&amp;xit</source>
        <extracomment>Menu: File, Exit</extracomment>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="10018">
        <source>&amp;Edit</source>
        <extracomment>Menu bar: Edit</extracomment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message id="10070">
        <source>&amp;Help</source>
        <extracomment>Menu bar: Help</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="10093">
        <source>Options</source>
        <extracomment>Advanced transfer settings: group</extracomment>
        <translation>Optionen</translation>
    </message>
    <message id="10102">
        <source>&amp;Default</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>Stan&amp;dard</translation>
    </message>
    <message id="10152">
        <source>Bro&amp;wse...</source>
        <extracomment>Button: choose a file, in File Operation and the transfer settings</extracomment>
        <translation>Durchs&amp;uchen...</translation>
    </message>
    <message id="10156">
        <source>Row:</source>
        <extracomment>Set_Cursor dialog: label of the row</extracomment>
        <translation>Zeile:</translation>
    </message>
    <message id="10157">
        <source>Column:</source>
        <extracomment>Set_Cursor dialog: label of the column</extracomment>
        <translation>Spalte:</translation>
    </message>
    <message id="10167">
        <source>Cancel</source>
        <extracomment>Button: Cancel, in every dialog</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message id="10208">
        <source>Settings</source>
        <extracomment>Transfer settings: tab of the first page</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message id="10279">
        <source>Copy to Clipboard</source>
        <extracomment>Caption: Copy dialog</extracomment>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message id="10297">
        <source>File Options</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Dateioptionen</translation>
    </message>
    <message id="10303">
        <source>Paste from Clipboard</source>
        <extracomment>Caption: Paste dialog</extracomment>
        <translation>Aus der Zwischenablage einfügen</translation>
    </message>
    <message id="10316">
        <source>&amp;Row:</source>
        <extracomment>Wait_For dialog: label of the start row</extracomment>
        <translation>&amp;Zeile:</translation>
    </message>
    <message id="10317">
        <source>C&amp;olumn:</source>
        <extracomment>Wait_For dialog: label of the start column</extracomment>
        <translation>&amp;Spalte:</translation>
    </message>
    <message id="10516">
        <source>Paste</source>
        <extracomment>Tooltip: Paste</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message id="10714">
        <source>Find</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Suchen</translation>
    </message>
    <message id="10811">
        <source>&amp;Binary</source>
        <extracomment>Transfer settings: radio button</extracomment>
        <translation>&amp;Binär</translation>
    </message>
    <message id="10857">
        <source>Transfer Options</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Übertragungsoptionen</translation>
    </message>
    <message id="10935">
        <source>&amp;Mode</source>
        <extracomment>Menu bar: Mode</extracomment>
        <translation>&amp;Modus</translation>
    </message>
    <message id="10980">
        <source>Host System</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Hostsystem</translation>
    </message>
    <message id="10982">
        <source>Host File</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Hostdatei</translation>
    </message>
    <message id="10983">
        <source>&amp;File Name:</source>
        <extracomment>Transfer settings: label of the host file name</extracomment>
        <translation>&amp;Dateiname:</translation>
    </message>
    <message id="10984">
        <source>&amp;Member:</source>
        <extracomment>Transfer settings: label of the member</extracomment>
        <translation>&amp;Member:</translation>
    </message>
    <message id="10985">
        <source>File T&amp;ype:</source>
        <extracomment>Transfer settings: label of the file type</extracomment>
        <translation>Dateit&amp;yp:</translation>
    </message>
    <message id="10986">
        <source>File M&amp;ode:</source>
        <extracomment>Transfer settings: label of the file mode</extracomment>
        <translation>Dateim&amp;odus:</translation>
    </message>
    <message id="10987">
        <source>PC File</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>PC-Datei</translation>
    </message>
    <message id="10988">
        <source>File &amp;Name:</source>
        <extracomment>Transfer settings: label of the PC file name</extracomment>
        <translation>Datei&amp;name:</translation>
    </message>
    <message id="10989">
        <source>Te&amp;xt</source>
        <extracomment>Transfer settings: radio button</extracomment>
        <translation>Te&amp;xt</translation>
    </message>
    <message id="10991">
        <source>App&amp;end</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>An&amp;hängen</translation>
    </message>
    <message id="10992">
        <source>Use &amp;Local Translate Tables</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>&amp;Lokale Umsetzungstabellen verwenden</translation>
    </message>
    <message id="10993">
        <source>&amp;Packet Size:</source>
        <extracomment>Transfer settings: label of the packet size</extracomment>
        <translation>&amp;Paketgröße:</translation>
    </message>
    <message id="10994">
        <source>&amp;Auto-&lt;Erase Input&gt; before Transfer</source>
        <extracomment>Transfer settings: check box for TSO and CICS/VS</extracomment>
        <translation>&amp;Automatisch &lt;Eingabe löschen&gt; vor der Übertragung</translation>
    </message>
    <message id="10995">
        <source>Advanced</source>
        <extracomment>Transfer settings: tab of the second page</extracomment>
        <translation>Erweitert</translation>
    </message>
    <message id="10996">
        <source>Record Format</source>
        <extracomment>Advanced transfer settings: group</extracomment>
        <translation>Satzformat</translation>
    </message>
    <message id="10997">
        <source>&amp;Variable</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Variabel</translation>
    </message>
    <message id="10998">
        <source>&amp;Fixed</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Fest</translation>
    </message>
    <message id="10999">
        <source>&amp;Undefined</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Undefiniert</translation>
    </message>
    <message id="11000">
        <source>Rec&amp;ord Length:</source>
        <extracomment>Advanced transfer settings: label of the record length</extracomment>
        <translation>Satz&amp;länge:</translation>
    </message>
    <message id="11001">
        <source>&amp;Block Size:</source>
        <extracomment>Advanced transfer settings: label of the block size</extracomment>
        <translation>&amp;Blockgröße:</translation>
    </message>
    <message id="11002">
        <source>Space</source>
        <extracomment>Advanced transfer settings: group, disk space on the host</extracomment>
        <translation>Speicherplatz</translation>
    </message>
    <message id="11003">
        <source>Allocate &amp;Size:</source>
        <extracomment>Advanced transfer settings: label of the primary space</extracomment>
        <translation>&amp;Zuordnungsgröße:</translation>
    </message>
    <message id="11004">
        <source>I&amp;ncrement:</source>
        <extracomment>Advanced transfer settings: label of the secondary space</extracomment>
        <translation>Er&amp;weiterung:</translation>
    </message>
    <message id="11005">
        <source>Unsp&amp;ecified</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>&amp;Nicht angegeben</translation>
    </message>
    <message id="11006">
        <source>Av&amp;g. Blocks:</source>
        <extracomment>Advanced transfer settings: radio button before the average block length</extracomment>
        <translation>&amp;Mittl. Blocklänge:</translation>
    </message>
    <message id="11007">
        <source>C&amp;ylinders</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>Z&amp;ylinder</translation>
    </message>
    <message id="11008">
        <source>&amp;Tracks</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>&amp;Spuren</translation>
    </message>
    <message id="11009">
        <source>&amp;Host File Password:</source>
        <extracomment>Advanced transfer settings: label of the password</extracomment>
        <translation>Kennwort der &amp;Hostdatei:</translation>
    </message>
    <message id="11010">
        <source>Transfer &amp;Program Name:</source>
        <extracomment>Advanced transfer settings: label of the host program</extracomment>
        <translation>Name des Übertragungs&amp;programms:</translation>
    </message>
    <message id="11011">
        <source>Include &amp;Left Parenthesis</source>
        <extracomment>Advanced transfer settings: check box</extracomment>
        <translation>Lin&amp;ke Klammer einfügen</translation>
    </message>
    <message id="11012">
        <source>Include &amp;Right Parenthesis</source>
        <extracomment>Advanced transfer settings: check box</extracomment>
        <translation>&amp;Rechte Klammer einfügen</translation>
    </message>
    <message id="11013">
        <source>Additional Para&amp;meters:</source>
        <extracomment>Advanced transfer settings: label of the additional parameters</extracomment>
        <translation>Zusätzliche P&amp;arameter:</translation>
    </message>
    <message id="11190">
        <source>Cu&amp;t<byte value="x9"/>Ctrl+X</source>
        <extracomment>Menu: Edit, Cut; shortcut after the tab</extracomment>
        <translation>&amp;Ausschneiden<byte value="x9"/>Strg+X</translation>
    </message>
    <message id="11191">
        <source>&amp;Copy<byte value="x9"/>Ctrl+C</source>
        <extracomment>Menu: Edit, Copy; shortcut after the tab</extracomment>
        <translation>&amp;Kopieren<byte value="x9"/>Strg+C</translation>
    </message>
    <message id="11192">
        <source>&amp;Paste<byte value="x9"/>Ctrl+V</source>
        <extracomment>Menu: Edit, Paste; shortcut after the tab</extracomment>
        <translation>&amp;Einfügen<byte value="x9"/>Strg+V</translation>
    </message>
    <message id="11193">
        <source>E&amp;ntry</source>
        <extracomment>Menu bar: Entry</extracomment>
        <translation>&amp;Eintrag</translation>
    </message>
    <message id="11194">
        <source>Insert &amp;Script Event...</source>
        <extracomment>Menu: Entry, Insert Script Event</extracomment>
        <translation>&amp;Skriptereignis einfügen...</translation>
    </message>
    <message id="11195">
        <source>Insert &amp;LU Function</source>
        <extracomment>Menu: Entry, Insert LU Function</extracomment>
        <translation>&amp;LU-Funktion einfügen</translation>
    </message>
    <message id="11196">
        <source>Insert &amp;Menu Command</source>
        <extracomment>Menu: Entry, Insert Menu Command</extracomment>
        <translation>&amp;Menübefehl einfügen</translation>
    </message>
    <message id="11197">
        <source>&amp;Edit/Replace Entry...</source>
        <extracomment>Menu: Entry, Edit/Replace Entry</extracomment>
        <translation>Eintrag &amp;bearbeiten/ersetzen...</translation>
    </message>
    <message id="11198">
        <source>&amp;Delete Entry<byte value="x9"/>Del</source>
        <extracomment>Menu: Entry, Delete Entry; shortcut after the tab</extracomment>
        <translation>&amp;Eintrag löschen<byte value="x9"/>Entf</translation>
    </message>
    <message id="11199">
        <source>  &amp;Mainframe</source>
        <extracomment>Menu: Mode, Mainframe; the two leading blanks align it with the host types that the program names itself</extracomment>
        <translation>  &amp;Mainframe</translation>
    </message>
    <message id="11200">
        <source>  &amp;iSeries</source>
        <extracomment>Menu: Mode, iSeries; two leading blanks as for Mainframe</extracomment>
        <translation>  &amp;iSeries</translation>
    </message>
    <message id="11201">
        <source>&amp;Script Editor Help Topics</source>
        <extracomment>Menu: Help, help topics</extracomment>
        <translation>&amp;Hilfethemen zum Script Editor</translation>
    </message>
    <message id="11202">
        <source>&amp;About Script Editor...</source>
        <extracomment>Menu: Help, About</extracomment>
        <translation>&amp;Info über Script Editor...</translation>
    </message>
    <message id="11203">
        <source>Script Events</source>
        <extracomment>Label of the Script Events palette</extracomment>
        <translation>Skriptereignisse</translation>
    </message>
    <message id="11204">
        <source>LU Functions</source>
        <extracomment>Label of the LU Functions palette</extracomment>
        <translation>LU-Funktionen</translation>
    </message>
    <message id="11205">
        <source>Menu Commands</source>
        <extracomment>Label of the Menu Commands palette</extracomment>
        <translation>Menübefehle</translation>
    </message>
    <message id="11206">
        <source>About Script Editor</source>
        <extracomment>Tooltip: About; caption of the About box</extracomment>
        <translation>Info über Script Editor</translation>
    </message>
    <message id="11209">
        <source>Encrypt and &amp;Hide</source>
        <extracomment>Text dialog: check box for Type</extracomment>
        <translation>Verschlüsseln und &amp;verbergen</translation>
    </message>
    <message id="11212">
        <source>Select the date and time to wait until:</source>
        <extracomment>Wait_Until dialog: label of the date and time</extracomment>
        <translation>Warten bis zu diesem Datum und dieser Uhrzeit:</translation>
    </message>
    <message id="11214">
        <source>Select the action to perform:</source>
        <extracomment>Watch_For and Action dialogs: heading above the three lists</extracomment>
        <translation>Wählen Sie die auszuführende Aktion aus:</translation>
    </message>
    <message id="11215">
        <source>Input</source>
        <extracomment>Input dialog: caption of the message for an empty title</extracomment>
        <translation>Eingabe</translation>
    </message>
    <message id="11216">
        <source>Input Window &amp;Title:</source>
        <extracomment>Input dialog: label of the title</extracomment>
        <translation>&amp;Titel des Eingabefensters:</translation>
    </message>
    <message id="11217">
        <source>&amp;Prompt:</source>
        <extracomment>Input dialog: label of the prompt</extracomment>
        <translation>&amp;Eingabeaufforderung:</translation>
    </message>
    <message id="11218">
        <source>Input a Cha&amp;racter</source>
        <extracomment>Input dialog: radio button</extracomment>
        <translation>Ein&amp;zelnes Zeichen eingeben</translation>
    </message>
    <message id="11219">
        <source>Input a &amp;String of Characters</source>
        <extracomment>Input dialog: radio button</extracomment>
        <translation>Zeichen&amp;folge eingeben</translation>
    </message>
    <message id="11220">
        <source>&amp;Maximum String Length:</source>
        <extracomment>Input dialog: label of the length</extracomment>
        <translation>&amp;Maximale Länge der Zeichenfolge:</translation>
    </message>
    <message id="11221">
        <source>&amp;Hide Input as User Types</source>
        <extracomment>Input dialog: check box</extracomment>
        <translation>Eingabe beim Tippen &amp;verbergen</translation>
    </message>
    <message id="11611">
        <source>APL Mode</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>APL-Modus</translation>
    </message>
    <message id="11612">
        <source>Attention</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Abruf (Attention)</translation>
    </message>
    <message id="11613">
        <source>Clear Screen</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Bildschirm löschen</translation>
    </message>
    <message id="11614">
        <source>Cursor Select</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Cursorauswahl</translation>
    </message>
    <message id="11616">
        <source>Erase EOF</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Bis Feldende löschen</translation>
    </message>
    <message id="11617">
        <source>Erase Input</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Eingabe löschen</translation>
    </message>
    <message id="11618">
        <source>Field Mark</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Feldmarke</translation>
    </message>
    <message id="11619">
        <source>New Line</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Neue Zeile</translation>
    </message>
    <message id="11620">
        <source>PF1</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF1</translation>
    </message>
    <message id="11621">
        <source>PF2</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF2</translation>
    </message>
    <message id="11622">
        <source>PF3</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF3</translation>
    </message>
    <message id="11623">
        <source>PF4</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF4</translation>
    </message>
    <message id="11624">
        <source>PF5</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF5</translation>
    </message>
    <message id="11625">
        <source>PF6</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF6</translation>
    </message>
    <message id="11626">
        <source>PF7</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF7</translation>
    </message>
    <message id="11627">
        <source>PF8</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF8</translation>
    </message>
    <message id="11628">
        <source>PF9</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF9</translation>
    </message>
    <message id="11629">
        <source>PF10</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF10</translation>
    </message>
    <message id="11630">
        <source>PF11</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF11</translation>
    </message>
    <message id="11631">
        <source>PF12</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF12</translation>
    </message>
    <message id="11632">
        <source>PF13</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF13</translation>
    </message>
    <message id="11633">
        <source>PF14</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF14</translation>
    </message>
    <message id="11634">
        <source>PF15</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF15</translation>
    </message>
    <message id="11635">
        <source>PF16</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF16</translation>
    </message>
    <message id="11636">
        <source>PF17</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF17</translation>
    </message>
    <message id="11637">
        <source>PF18</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF18</translation>
    </message>
    <message id="11638">
        <source>PF19</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF19</translation>
    </message>
    <message id="11639">
        <source>PF20</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF20</translation>
    </message>
    <message id="11640">
        <source>PF21</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF21</translation>
    </message>
    <message id="11641">
        <source>PF22</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF22</translation>
    </message>
    <message id="11642">
        <source>PF23</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF23</translation>
    </message>
    <message id="11643">
        <source>PF24</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF24</translation>
    </message>
    <message id="11644">
        <source>Reset</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Grundstellung</translation>
    </message>
    <message id="11645">
        <source>System Request</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Systemanforderung</translation>
    </message>
    <message id="11646">
        <source>Help</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="11647">
        <source>F1</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F1</translation>
    </message>
    <message id="11648">
        <source>F2</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F2</translation>
    </message>
    <message id="11649">
        <source>F3</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F3</translation>
    </message>
    <message id="11650">
        <source>F4</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F4</translation>
    </message>
    <message id="11651">
        <source>F5</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F5</translation>
    </message>
    <message id="11652">
        <source>F6</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F6</translation>
    </message>
    <message id="11653">
        <source>F7</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F7</translation>
    </message>
    <message id="11654">
        <source>F8</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F8</translation>
    </message>
    <message id="11655">
        <source>F9</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F9</translation>
    </message>
    <message id="11656">
        <source>F10</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F10</translation>
    </message>
    <message id="11657">
        <source>F11</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F11</translation>
    </message>
    <message id="11658">
        <source>F12</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F12</translation>
    </message>
    <message id="11659">
        <source>F13</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F13</translation>
    </message>
    <message id="11660">
        <source>F14</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F14</translation>
    </message>
    <message id="11661">
        <source>F15</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F15</translation>
    </message>
    <message id="11662">
        <source>F16</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F16</translation>
    </message>
    <message id="11663">
        <source>F17</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F17</translation>
    </message>
    <message id="11664">
        <source>F18</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F18</translation>
    </message>
    <message id="11665">
        <source>F19</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F19</translation>
    </message>
    <message id="11666">
        <source>F20</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F20</translation>
    </message>
    <message id="11667">
        <source>F21</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F21</translation>
    </message>
    <message id="11668">
        <source>F22</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F22</translation>
    </message>
    <message id="11669">
        <source>F23</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F23</translation>
    </message>
    <message id="11670">
        <source>F24</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F24</translation>
    </message>
    <message id="11671">
        <source>Print</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Drucken</translation>
    </message>
    <message id="11709">
        <source>Open</source>
        <extracomment>Tooltip: Open</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message id="11710">
        <source>Save As</source>
        <extracomment>Tooltip: Save As</extracomment>
        <translation>Speichern unter</translation>
    </message>
    <message id="11718">
        <source>Print Screen</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Bildschirm drucken</translation>
    </message>
    <message id="11720">
        <source>Exit</source>
        <extracomment>Tooltip: Exit</extracomment>
        <translation>Beenden</translation>
    </message>
    <message id="11724">
        <source>Paste From File</source>
        <extracomment>File Operation: caption for menu command 219</extracomment>
        <translation>Aus Datei einfügen</translation>
    </message>
    <message id="11913">
        <source>New Session</source>
        <extracomment>Menu command 201</extracomment>
        <translation>Neue Sitzung</translation>
    </message>
    <message id="11914">
        <source>Open Session</source>
        <extracomment>Menu command 202; takes a session file</extracomment>
        <translation>Sitzung öffnen</translation>
    </message>
    <message id="11915">
        <source>Save Session</source>
        <extracomment>Menu command 203</extracomment>
        <translation>Sitzung speichern</translation>
    </message>
    <message id="11916">
        <source>Save Session As</source>
        <extracomment>Menu command 204; takes a session file</extracomment>
        <translation>Sitzung speichern unter</translation>
    </message>
    <message id="11917">
        <source>Close Session</source>
        <extracomment>Menu command 205</extracomment>
        <translation>Sitzung schließen</translation>
    </message>
    <message id="11918">
        <source>Connect</source>
        <extracomment>Menu command 206</extracomment>
        <translation>Verbinden</translation>
    </message>
    <message id="11919">
        <source>Disconnect</source>
        <extracomment>Menu command 207</extracomment>
        <translation>Verbindung trennen</translation>
    </message>
    <message id="11920">
        <source>Page Setup</source>
        <extracomment>Menu command 208</extracomment>
        <translation>Seite einrichten</translation>
    </message>
    <message id="11921">
        <source>Print Preview</source>
        <extracomment>Menu command 209</extracomment>
        <translation>Druckvorschau</translation>
    </message>
    <message id="11922">
        <source>Print Screen</source>
        <extracomment>Menu command 210</extracomment>
        <translation>Bildschirm drucken</translation>
    </message>
    <message id="11923">
        <source>Print Selection</source>
        <extracomment>Menu command 211</extracomment>
        <translation>Auswahl drucken</translation>
    </message>
    <message id="11924">
        <source>Select Printer</source>
        <extracomment>Menu command 212</extracomment>
        <translation>Drucker auswählen</translation>
    </message>
    <message id="11925">
        <source>Associate Printer Session</source>
        <extracomment>Menu command 213; not for VT</extracomment>
        <translation>Druckersitzung zuordnen</translation>
    </message>
    <message id="11926">
        <source>Exit</source>
        <extracomment>Menu command 214</extracomment>
        <translation>Beenden</translation>
    </message>
    <message id="11927">
        <source>Cut</source>
        <extracomment>Menu command 215</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message id="11928">
        <source>Copy</source>
        <extracomment>Menu command 216</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="11929">
        <source>Copy Append</source>
        <extracomment>Menu command 217</extracomment>
        <translation>Kopieren und anhängen</translation>
    </message>
    <message id="11930">
        <source>Paste</source>
        <extracomment>Menu command 218</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message id="11931">
        <source>Paste From File</source>
        <extracomment>Menu command 219; takes a file</extracomment>
        <translation>Aus Datei einfügen</translation>
    </message>
    <message id="11932">
        <source>Paste Continue</source>
        <extracomment>Menu command 220</extracomment>
        <translation>Einfügen fortsetzen</translation>
    </message>
    <message id="11933">
        <source>Clear Selection</source>
        <extracomment>Menu command 221</extracomment>
        <translation>Auswahl löschen</translation>
    </message>
    <message id="11934">
        <source>Select All</source>
        <extracomment>Menu command 222</extracomment>
        <translation>Alles auswählen</translation>
    </message>
    <message id="11935">
        <source>Deselect</source>
        <extracomment>Menu command 223</extracomment>
        <translation>Auswahl aufheben</translation>
    </message>
    <message id="11936">
        <source>Find Text</source>
        <extracomment>Menu command 224</extracomment>
        <translation>Text suchen</translation>
    </message>
    <message id="11937">
        <source>Toolbar</source>
        <extracomment>Menu command 225</extracomment>
        <translation>Symbolleiste</translation>
    </message>
    <message id="11938">
        <source>Status Bar</source>
        <extracomment>Menu command 226</extracomment>
        <translation>Statusleiste</translation>
    </message>
    <message id="11939">
        <source>Keypad</source>
        <extracomment>Menu command 227</extracomment>
        <translation>Tastenfeld</translation>
    </message>
    <message id="11940">
        <source>Full Screen</source>
        <extracomment>Menu command 228</extracomment>
        <translation>Vollbild</translation>
    </message>
    <message id="11941">
        <source>Zoom In</source>
        <extracomment>Menu command 229</extracomment>
        <translation>Vergrößern</translation>
    </message>
    <message id="11942">
        <source>Zoom Out</source>
        <extracomment>Menu command 230</extracomment>
        <translation>Verkleinern</translation>
    </message>
    <message id="11943">
        <source>Ruler</source>
        <extracomment>Menu command 231</extracomment>
        <translation>Lineal</translation>
    </message>
    <message id="11944">
        <source>Hot Spots</source>
        <extracomment>Menu command 232</extracomment>
        <translation>Hotspots</translation>
    </message>
    <message id="11945">
        <source>Screen History</source>
        <extracomment>Menu command 233</extracomment>
        <translation>Bildschirmverlauf</translation>
    </message>
    <message id="11946">
        <source>Refresh Screen</source>
        <extracomment>Menu command 234</extracomment>
        <translation>Bildschirm aktualisieren</translation>
    </message>
    <message id="11947">
        <source>Transfer Settings</source>
        <extracomment>Menu command 235</extracomment>
        <translation>Übertragungseinstellungen</translation>
    </message>
    <message id="11948">
        <source>Send File to Host</source>
        <extracomment>Menu command 236; takes transfer settings</extracomment>
        <translation>Datei an Host senden</translation>
    </message>
    <message id="11949">
        <source>Receive File from Host</source>
        <extracomment>Menu command 237; takes transfer settings</extracomment>
        <translation>Datei vom Host empfangen</translation>
    </message>
    <message id="11952">
        <source>Edit Transfer List</source>
        <extracomment>Menu command 238</extracomment>
        <translation>Übertragungsliste bearbeiten</translation>
    </message>
    <message id="11953">
        <source>Run Transfer List</source>
        <extracomment>Menu command 239</extracomment>
        <translation>Übertragungsliste ausführen</translation>
    </message>
    <message id="11954">
        <source>Stop Transfer</source>
        <extracomment>Menu command 240</extracomment>
        <translation>Übertragung abbrechen</translation>
    </message>
    <message id="11959">
        <source>Display Settings</source>
        <extracomment>Menu command 242</extracomment>
        <translation>Anzeigeeinstellungen</translation>
    </message>
    <message id="11960">
        <source>Color Settings</source>
        <extracomment>Menu command 243</extracomment>
        <translation>Farbeinstellungen</translation>
    </message>
    <message id="11962">
        <source>Keyboard Map</source>
        <extracomment>Menu command 245</extracomment>
        <translation>Tastaturbelegung</translation>
    </message>
    <message id="11963">
        <source>Mouse Map</source>
        <extracomment>Menu command 246</extracomment>
        <translation>Mausbelegung</translation>
    </message>
    <message id="11964">
        <source>Customize Toolbar</source>
        <extracomment>Menu command 247</extracomment>
        <translation>Symbolleiste anpassen</translation>
    </message>
    <message id="11965">
        <source>Customize Keypad</source>
        <extracomment>Menu command 248</extracomment>
        <translation>Tastenfeld anpassen</translation>
    </message>
    <message id="11966">
        <source>Hot Spot Settings</source>
        <extracomment>Menu command 249</extracomment>
        <translation>Hotspot-Einstellungen</translation>
    </message>
    <message id="11967">
        <source>Printer Settings</source>
        <extracomment>Menu command 250</extracomment>
        <translation>Druckereinstellungen</translation>
    </message>
    <message id="11968">
        <source>Security Settings</source>
        <extracomment>Menu command 251</extracomment>
        <translation>Sicherheitseinstellungen</translation>
    </message>
    <message id="11969">
        <source>Save Settings on Exit</source>
        <extracomment>Menu command 252</extracomment>
        <translation>Einstellungen beim Beenden speichern</translation>
    </message>
    <message id="11970">
        <source>Record Macro</source>
        <extracomment>Menu command 253</extracomment>
        <translation>Makro aufzeichnen</translation>
    </message>
    <message id="11971">
        <source>Run Macro</source>
        <extracomment>Menu command 254; takes a macro file</extracomment>
        <translation>Makro ausführen</translation>
    </message>
    <message id="11972">
        <source>Pause Macro</source>
        <extracomment>Menu command 255</extracomment>
        <translation>Makro anhalten</translation>
    </message>
    <message id="11973">
        <source>Stop Macro</source>
        <extracomment>Menu command 256</extracomment>
        <translation>Makro beenden</translation>
    </message>
    <message id="11974">
        <source>Edit Macro</source>
        <extracomment>Menu command 257; takes a macro file</extracomment>
        <translation>Makro bearbeiten</translation>
    </message>
    <message id="11975">
        <source>Start Trace</source>
        <extracomment>Menu command 258</extracomment>
        <translation>Ablaufverfolgung starten</translation>
    </message>
    <message id="11976">
        <source>Stop Trace</source>
        <extracomment>Menu command 259</extracomment>
        <translation>Ablaufverfolgung beenden</translation>
    </message>
    <message id="11977">
        <source>Next Window</source>
        <extracomment>Menu command 260</extracomment>
        <translation>Nächstes Fenster</translation>
    </message>
    <message id="11978">
        <source>Previous Window</source>
        <extracomment>Menu command 261</extracomment>
        <translation>Vorheriges Fenster</translation>
    </message>
    <message id="11979">
        <source>Cascade Windows</source>
        <extracomment>Menu command 262</extracomment>
        <translation>Fenster überlappend anordnen</translation>
    </message>
    <message id="11980">
        <source>Tile Windows</source>
        <extracomment>Menu command 263</extracomment>
        <translation>Fenster nebeneinander anordnen</translation>
    </message>
    <message id="11981">
        <source>Minimize Window</source>
        <extracomment>Menu command 264</extracomment>
        <translation>Fenster minimieren</translation>
    </message>
    <message id="11982">
        <source>Help Topics</source>
        <extracomment>Menu command 265</extracomment>
        <translation>Hilfethemen</translation>
    </message>
    <message id="11983">
        <source>Keyboard Help</source>
        <extracomment>Menu command 266</extracomment>
        <translation>Tastaturhilfe</translation>
    </message>
    <message id="11985">
        <source>About Quendra</source>
        <extracomment>Menu command 268</extracomment>
        <translation>Info über Quendra</translation>
    </message>
    <message id="11990">
        <source>File Transfer</source>
        <extracomment>Caption: message about the file transfer settings</extracomment>
        <translation>Dateiübertragung</translation>
    </message>
    <message id="11998">
        <source>File Transfer Settings</source>
        <extracomment>Caption: file transfer settings; title of their file dialog</extracomment>
        <translation>Einstellungen für die Dateiübertragung</translation>
    </message>
    <message id="12150">
        <source>Alternate Cursor</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Alternativer Cursor</translation>
    </message>
    <message id="12151">
        <source>Backspace</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Rücktaste</translation>
    </message>
    <message id="12152">
        <source>Back Tab</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Rücktabulator</translation>
    </message>
    <message id="12153">
        <source>Clear Partition</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Partition löschen</translation>
    </message>
    <message id="12154">
        <source>Cursor Down</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor nach unten</translation>
    </message>
    <message id="12155">
        <source>Cursor Left</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor nach links</translation>
    </message>
    <message id="12156">
        <source>Cursor Right</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor nach rechts</translation>
    </message>
    <message id="12157">
        <source>Cursor Up</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor nach oben</translation>
    </message>
    <message id="12158">
        <source>Cursor Wrap</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Cursorumlauf</translation>
    </message>
    <message id="12159">
        <source>Delete</source>
        <extracomment>LU function of Mainframe, iSeries and VT; verb of the tooltip and question that delete entries, before “1 entry” or “3 entries”</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="12160">
        <source>Enter</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Eingabe</translation>
    </message>
    <message id="12161">
        <source>Erase Word</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Wort löschen</translation>
    </message>
    <message id="12162">
        <source>Hexadecimal Mode</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Hexadezimalmodus</translation>
    </message>
    <message id="12163">
        <source>Home</source>
        <extracomment>LU function of Mainframe and VT</extracomment>
        <translation>Pos1</translation>
    </message>
    <message id="12164">
        <source>Insert</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Einfügen</translation>
    </message>
    <message id="12165">
        <source>Jump Partition</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Partition wechseln</translation>
    </message>
    <message id="12166">
        <source>Next Session</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Nächste Sitzung</translation>
    </message>
    <message id="12167">
        <source>Numeric Override</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Numerische Sperre aufheben</translation>
    </message>
    <message id="12168">
        <source>Rapid / Word Left</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Schnell / Wort nach links</translation>
    </message>
    <message id="12169">
        <source>Rapid / Word Right</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Schnell / Wort nach rechts</translation>
    </message>
    <message id="12170">
        <source>Scroll Down</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Nach unten blättern</translation>
    </message>
    <message id="12171">
        <source>Scroll Up</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Nach oben blättern</translation>
    </message>
    <message id="12172">
        <source>Word Wrap</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Zeilenumbruch</translation>
    </message>
    <message id="12173">
        <source>Back Tab</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Rücktabulator</translation>
    </message>
    <message id="12174">
        <source>Field +</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Feld +</translation>
    </message>
    <message id="12175">
        <source>Field -</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Feld -</translation>
    </message>
    <message id="12176">
        <source>Field Exit</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Feld verlassen</translation>
    </message>
    <message id="12177">
        <source>Home</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Pos1</translation>
    </message>
    <message id="12180">
        <source>Roll Down</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Abwärts rollen</translation>
    </message>
    <message id="12181">
        <source>Roll Up</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Aufwärts rollen</translation>
    </message>
    <message id="12182">
        <source>Tab</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Tabulator</translation>
    </message>
    <message id="12191">
        <source>Page Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Bild ab</translation>
    </message>
    <message id="12192">
        <source>Page Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Bild auf</translation>
    </message>
    <message id="12465">
        <source>The script file “%s” cannot be opened.</source>
        <extracomment>Message: a script file cannot be opened, %s is the path</extracomment>
        <translation>Die Skriptdatei „%s“ kann nicht geöffnet werden.</translation>
    </message>
    <message id="12514">
        <source>The registry key of the Script Editor can be neither created nor opened.</source>
        <extracomment>Message: the registry key of the program can be neither created nor opened</extracomment>
        <translation>Der Registrierungsschlüssel des Script Editors kann weder erstellt noch geöffnet werden.</translation>
    </message>
    <message id="12519">
        <source>Open Session</source>
        <extracomment>File Operation: caption for menu command 202</extracomment>
        <translation>Sitzung öffnen</translation>
    </message>
    <message id="12655">
        <source>Copy</source>
        <extracomment>Tooltip: Copy</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="12656">
        <source>Select</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Auswählen</translation>
    </message>
    <message id="12715">
        <source>New</source>
        <extracomment>Tooltip: New</extracomment>
        <translation>Neu</translation>
    </message>
    <message id="13015">
        <source>The file transfer settings cannot be displayed.</source>
        <extracomment>Message: the file transfer settings cannot be shown</extracomment>
        <translation>Die Einstellungen für die Dateiübertragung können nicht angezeigt werden.</translation>
    </message>
    <message id="13224">
        <source>Confirm Delete</source>
        <extracomment>Caption: question before deleting entries</extracomment>
        <translation>Löschen bestätigen</translation>
    </message>
    <message id="13326">
        <source>Web Support</source>
        <extracomment>Menu command 267</extracomment>
        <translation>Support im Web</translation>
    </message>
    <message id="13442">
        <source>F10</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F10</translation>
    </message>
    <message id="13443">
        <source>F11</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F11</translation>
    </message>
    <message id="13444">
        <source>F12</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F12</translation>
    </message>
    <message id="13445">
        <source>F13</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F13</translation>
    </message>
    <message id="13446">
        <source>F14</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F14</translation>
    </message>
    <message id="13447">
        <source>F15</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F15</translation>
    </message>
    <message id="13448">
        <source>F16</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F16</translation>
    </message>
    <message id="13449">
        <source>F17</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F17</translation>
    </message>
    <message id="13450">
        <source>F18</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F18</translation>
    </message>
    <message id="13451">
        <source>F19</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F19</translation>
    </message>
    <message id="13452">
        <source>F20</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F20</translation>
    </message>
    <message id="13453">
        <source>Escape</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Escape</translation>
    </message>
    <message id="13454">
        <source>Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor nach oben</translation>
    </message>
    <message id="13455">
        <source>Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor nach unten</translation>
    </message>
    <message id="13456">
        <source>Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor nach rechts</translation>
    </message>
    <message id="13457">
        <source>Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor nach links</translation>
    </message>
    <message id="13458">
        <source>PF1</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF1</translation>
    </message>
    <message id="13459">
        <source>PF2</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF2</translation>
    </message>
    <message id="13460">
        <source>PF3</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF3</translation>
    </message>
    <message id="13461">
        <source>PF4</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF4</translation>
    </message>
    <message id="13462">
        <source>Keypad 0</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 0</translation>
    </message>
    <message id="13463">
        <source>Keypad 1</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 1</translation>
    </message>
    <message id="13464">
        <source>Keypad 2</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 2</translation>
    </message>
    <message id="13465">
        <source>Keypad 3</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 3</translation>
    </message>
    <message id="13466">
        <source>Keypad 4</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 4</translation>
    </message>
    <message id="13467">
        <source>Keypad 5</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 5</translation>
    </message>
    <message id="13468">
        <source>Keypad 6</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 6</translation>
    </message>
    <message id="13469">
        <source>Keypad 7</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 7</translation>
    </message>
    <message id="13470">
        <source>Keypad 8</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 8</translation>
    </message>
    <message id="13471">
        <source>Keypad 9</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock 9</translation>
    </message>
    <message id="13472">
        <source>Keypad Minus</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock Minus</translation>
    </message>
    <message id="13473">
        <source>Keypad Comma</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock Komma</translation>
    </message>
    <message id="13474">
        <source>Keypad Period</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock Punkt</translation>
    </message>
    <message id="13475">
        <source>Keypad Enter</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ziffernblock Eingabe</translation>
    </message>
    <message id="13476">
        <source>Hold Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Bildschirm anhalten</translation>
    </message>
    <message id="13477">
        <source>Print Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Bildschirm drucken</translation>
    </message>
    <message id="13478">
        <source>Set-Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Set-Up</translation>
    </message>
    <message id="13479">
        <source>Data/Talk</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Daten/Sprechen</translation>
    </message>
    <message id="13480">
        <source>Break</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Unterbrechung</translation>
    </message>
    <message id="13481">
        <source>Long Break</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Lange Unterbrechung</translation>
    </message>
    <message id="13482">
        <source>Answerback</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Kennungsgeber</translation>
    </message>
    <message id="13483">
        <source>Compose Character</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Zeichen zusammensetzen</translation>
    </message>
    <message id="13484">
        <source>Return</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Wagenrücklauf</translation>
    </message>
    <message id="13485">
        <source>Line Feed</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Zeilenvorschub</translation>
    </message>
    <message id="13486">
        <source>Remove</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Entfernen</translation>
    </message>
    <message id="13487">
        <source>Previous Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Vorheriger Bildschirm</translation>
    </message>
    <message id="13488">
        <source>Next Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Nächster Bildschirm</translation>
    </message>
    <message id="13489">
        <source>User-Defined Key F6</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F6</translation>
    </message>
    <message id="13490">
        <source>User-Defined Key F7</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F7</translation>
    </message>
    <message id="13491">
        <source>User-Defined Key F8</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F8</translation>
    </message>
    <message id="13492">
        <source>User-Defined Key F9</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F9</translation>
    </message>
    <message id="13493">
        <source>User-Defined Key F10</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F10</translation>
    </message>
    <message id="13494">
        <source>User-Defined Key F11</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F11</translation>
    </message>
    <message id="13495">
        <source>User-Defined Key F12</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F12</translation>
    </message>
    <message id="13496">
        <source>User-Defined Key F13</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F13</translation>
    </message>
    <message id="13497">
        <source>User-Defined Key F14</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F14</translation>
    </message>
    <message id="13498">
        <source>User-Defined Key F15</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F15</translation>
    </message>
    <message id="13499">
        <source>User-Defined Key F16</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F16</translation>
    </message>
    <message id="13500">
        <source>User-Defined Key F17</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F17</translation>
    </message>
    <message id="13501">
        <source>User-Defined Key F18</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F18</translation>
    </message>
    <message id="13502">
        <source>User-Defined Key F19</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F19</translation>
    </message>
    <message id="13503">
        <source>User-Defined Key F20</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Benutzertaste F20</translation>
    </message>
    <message id="13504">
        <source>Help</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message id="13505">
        <source>Do</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ausführen</translation>
    </message>
    <message id="13506">
        <source>Clear Display</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Anzeige löschen</translation>
    </message>
    <message id="13507">
        <source>Clear Communications</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Kommunikation zurücksetzen</translation>
    </message>
    <message id="13508">
        <source>Reset Terminal</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Terminal zurücksetzen</translation>
    </message>
    <message id="13509">
        <source>Local Mode</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Lokalbetrieb</translation>
    </message>
    <message id="13510">
        <source>End</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Ende</translation>
    </message>
    <message id="13511">
        <source>Tab</source>
        <extracomment>LU function of Mainframe and VT</extracomment>
        <translation>Tabulator</translation>
    </message>
    <message id="13512">
        <source>Ctrl+@</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+@</translation>
    </message>
    <message id="13513">
        <source>Ctrl+A</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+A</translation>
    </message>
    <message id="13514">
        <source>Ctrl+B</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+B</translation>
    </message>
    <message id="13515">
        <source>Ctrl+C</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+C</translation>
    </message>
    <message id="13516">
        <source>Ctrl+D</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+D</translation>
    </message>
    <message id="13517">
        <source>Ctrl+E</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+E</translation>
    </message>
    <message id="13518">
        <source>Ctrl+F</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+F</translation>
    </message>
    <message id="13519">
        <source>Ctrl+G</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+G</translation>
    </message>
    <message id="13520">
        <source>Ctrl+H</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+H</translation>
    </message>
    <message id="13521">
        <source>Ctrl+I</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+I</translation>
    </message>
    <message id="13522">
        <source>Ctrl+J</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+J</translation>
    </message>
    <message id="13523">
        <source>Ctrl+K</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+K</translation>
    </message>
    <message id="13524">
        <source>Ctrl+L</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+L</translation>
    </message>
    <message id="13525">
        <source>Ctrl+M</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+M</translation>
    </message>
    <message id="13526">
        <source>Ctrl+N</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+N</translation>
    </message>
    <message id="13527">
        <source>Ctrl+O</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+O</translation>
    </message>
    <message id="13528">
        <source>Ctrl+P</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+P</translation>
    </message>
    <message id="13529">
        <source>Ctrl+Q</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Q</translation>
    </message>
    <message id="13530">
        <source>Ctrl+R</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+R</translation>
    </message>
    <message id="13531">
        <source>Ctrl+S</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+S</translation>
    </message>
    <message id="13532">
        <source>Ctrl+T</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+T</translation>
    </message>
    <message id="13533">
        <source>Ctrl+U</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+U</translation>
    </message>
    <message id="13534">
        <source>Ctrl+V</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+V</translation>
    </message>
    <message id="13535">
        <source>Ctrl+W</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+W</translation>
    </message>
    <message id="13536">
        <source>Ctrl+X</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+X</translation>
    </message>
    <message id="13537">
        <source>Ctrl+Y</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Y</translation>
    </message>
    <message id="13538">
        <source>Ctrl+Z</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Z</translation>
    </message>
    <message id="13539">
        <source>Ctrl+[</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+[</translation>
    </message>
    <message id="13540">
        <source>Ctrl+\</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+\</translation>
    </message>
    <message id="13541">
        <source>Ctrl+]</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+]</translation>
    </message>
    <message id="13542">
        <source>Ctrl+^</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+^</translation>
    </message>
    <message id="13543">
        <source>Ctrl+_</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+_</translation>
    </message>
    <message id="13544">
        <source>Scroll Line Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Zeile nach oben blättern</translation>
    </message>
    <message id="13545">
        <source>Scroll Line Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Zeile nach unten blättern</translation>
    </message>
    <message id="13546">
        <source>Scroll Page Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Seite nach oben blättern</translation>
    </message>
    <message id="13547">
        <source>Scroll Page Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Seite nach unten blättern</translation>
    </message>
    <message id="13548">
        <source>Pan Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ausschnitt nach links</translation>
    </message>
    <message id="13549">
        <source>Pan Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ausschnitt nach rechts</translation>
    </message>
    <message id="13550">
        <source>Auto Print</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Automatisch drucken</translation>
    </message>
    <message id="13551">
        <source>Printer Form Feed</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Seitenvorschub des Druckers</translation>
    </message>
    <message id="13552">
        <source>Print Scrollback</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Bildlaufpuffer drucken</translation>
    </message>
    <message id="13553">
        <source>Switch Session</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Sitzung wechseln</translation>
    </message>
    <message id="13619">
        <source>Save</source>
        <extracomment>Tooltip: Save</extracomment>
        <translation>Speichern</translation>
    </message>
    <message id="13673">
        <source>Cut</source>
        <extracomment>Tooltip: Cut</extracomment>
        <translation>Ausschneiden</translation>
    </message>
    <message id="13674">
        <source>Insert Script Event</source>
        <extracomment>Tooltip: Insert Script Event, no palette row selected</extracomment>
        <translation>Skriptereignis einfügen</translation>
    </message>
    <message id="13675">
        <source>Insert LU Function</source>
        <extracomment>Tooltip: Insert LU Function, no palette row selected</extracomment>
        <translation>LU-Funktion einfügen</translation>
    </message>
    <message id="13676">
        <source>Insert Menu Command</source>
        <extracomment>Tooltip: Insert Menu Command, no palette row selected</extracomment>
        <translation>Menübefehl einfügen</translation>
    </message>
    <message id="13677">
        <source>Edit/Replace Entry</source>
        <extracomment>Tooltip: Edit/Replace Entry, no entry focused</extracomment>
        <translation>Eintrag bearbeiten/ersetzen</translation>
    </message>
    <message id="13678">
        <source>Mainframe Mode</source>
        <extracomment>Tooltip: mode Mainframe</extracomment>
        <translation>Modus Mainframe</translation>
    </message>
    <message id="13679">
        <source>iSeries Mode</source>
        <extracomment>Tooltip: mode iSeries</extracomment>
        <translation>Modus iSeries</translation>
    </message>
    <message id="13680">
        <source>VT Mode</source>
        <extracomment>Tooltip: mode VT</extracomment>
        <translation>Modus VT</translation>
    </message>
    <message id="13681">
        <source>Script Editor Help Topics</source>
        <extracomment>Tooltip: Help</extracomment>
        <translation>Hilfethemen zum Script Editor</translation>
    </message>
    <message id="13682">
        <source>Creates a new script.</source>
        <extracomment>Status bar: New</extracomment>
        <translation>Erstellt ein neues Skript.</translation>
    </message>
    <message id="13683">
        <source>Opens an existing script.</source>
        <extracomment>Status bar: Open</extracomment>
        <translation>Öffnet ein vorhandenes Skript.</translation>
    </message>
    <message id="13684">
        <source>Saves the script.</source>
        <extracomment>Status bar: Save</extracomment>
        <translation>Speichert das Skript.</translation>
    </message>
    <message id="13685">
        <source>Saves the script under a new name.</source>
        <extracomment>Status bar: Save As</extracomment>
        <translation>Speichert das Skript unter einem neuen Namen.</translation>
    </message>
    <message id="13686">
        <source>Closes the Script Editor.</source>
        <extracomment>Status bar: Exit</extracomment>
        <translation>Beendet den Script Editor.</translation>
    </message>
    <message id="13687">
        <source>Removes the selected entries and keeps them for pasting.</source>
        <extracomment>Status bar: Cut</extracomment>
        <translation>Entfernt die ausgewählten Einträge und hält sie zum Einfügen bereit.</translation>
    </message>
    <message id="13688">
        <source>Copies the selected entries for pasting.</source>
        <extracomment>Status bar: Copy</extracomment>
        <translation>Kopiert die ausgewählten Einträge zum Einfügen.</translation>
    </message>
    <message id="13689">
        <source>Inserts the cut or copied entries after the current entry.</source>
        <extracomment>Status bar: Paste</extracomment>
        <translation>Fügt die ausgeschnittenen oder kopierten Einträge nach dem aktuellen Eintrag ein.</translation>
    </message>
    <message id="13690">
        <source>Inserts the selected script event into the script.</source>
        <extracomment>Status bar: Insert Script Event</extracomment>
        <translation>Fügt das ausgewählte Skriptereignis in das Skript ein.</translation>
    </message>
    <message id="13691">
        <source>Inserts the selected LU function into the script.</source>
        <extracomment>Status bar: Insert LU Function</extracomment>
        <translation>Fügt die ausgewählte LU-Funktion in das Skript ein.</translation>
    </message>
    <message id="13692">
        <source>Inserts the selected menu command into the script.</source>
        <extracomment>Status bar: Insert Menu Command</extracomment>
        <translation>Fügt den ausgewählten Menübefehl in das Skript ein.</translation>
    </message>
    <message id="13693">
        <source>Edits the current entry, or replaces it with the one selected in the palette.</source>
        <extracomment>Status bar: Edit/Replace Entry</extracomment>
        <translation>Bearbeitet den aktuellen Eintrag oder ersetzt ihn durch den in der Palette ausgewählten.</translation>
    </message>
    <message id="13694">
        <source>Deletes the selected entries.</source>
        <extracomment>Status bar: Delete Entry</extracomment>
        <translation>Löscht die ausgewählten Einträge.</translation>
    </message>
    <message id="13695">
        <source>Switches the script to Mainframe display sessions.</source>
        <extracomment>Status bar: mode Mainframe</extracomment>
        <translation>Stellt das Skript auf Mainframe-Sitzungen um.</translation>
    </message>
    <message id="13696">
        <source>Switches the script to iSeries display sessions.</source>
        <extracomment>Status bar: mode iSeries</extracomment>
        <translation>Stellt das Skript auf iSeries-Sitzungen um.</translation>
    </message>
    <message id="13697">
        <source>Switches the script to VT sessions.</source>
        <extracomment>Status bar: mode VT</extracomment>
        <translation>Stellt das Skript auf VT-Sitzungen um.</translation>
    </message>
    <message id="13698">
        <source>Opens the help topics of the Script Editor.</source>
        <extracomment>Status bar: Help</extracomment>
        <translation>Öffnet die Hilfethemen zum Script Editor.</translation>
    </message>
    <message id="13699">
        <source>Shows the version and product information.</source>
        <extracomment>Status bar: About</extracomment>
        <translation>Zeigt Versions- und Produktinformationen an.</translation>
    </message>
    <message id="13700">
        <source>Quendra Script Editor</source>
        <extracomment>Caption: registry message at start-up</extracomment>
        <translation>Quendra Script Editor</translation>
    </message>
    <message id="13701">
        <source>Insert Script Event %s</source>
        <extracomment>Tooltip: insert the selected script event, %s is its name</extracomment>
        <translation>Skriptereignis %s einfügen</translation>
    </message>
    <message id="13702">
        <source>Insert LU Function %s</source>
        <extracomment>Tooltip: insert the selected LU function, %s is its name</extracomment>
        <translation>LU-Funktion %s einfügen</translation>
    </message>
    <message id="13703">
        <source>Insert Menu Command %s</source>
        <extracomment>Tooltip: insert the selected menu command, %s is its name</extracomment>
        <translation>Menübefehl %s einfügen</translation>
    </message>
    <message id="13704">
        <source>Replace %s</source>
        <extracomment>Tooltip: replace the focused entry, %s is its line in the script list</extracomment>
        <translation>%s ersetzen</translation>
    </message>
    <message id="13705">
        <source>Edit %s</source>
        <extracomment>Tooltip: edit the focused entry, %s is its line in the script list</extracomment>
        <translation>%s bearbeiten</translation>
    </message>
    <message id="13707">
        <source>No entries</source>
        <extracomment>Entry count of an empty script</extracomment>
        <translation>Keine Einträge</translation>
    </message>
    <message id="13708">
        <source>1 entry</source>
        <extracomment>Entry count: one; also the object of Delete</extracomment>
        <translation>1 Eintrag</translation>
    </message>
    <message id="13709">
        <source>%d entries</source>
        <extracomment>Entry count, %d is the number; also the object of Delete</extracomment>
        <translation>%d Einträge</translation>
    </message>
    <message id="13710">
        <source>Do you want to save the changes to “%s”?</source>
        <extracomment>Question: save a named script, %s is the path</extracomment>
        <translation>Möchten Sie die Änderungen an „%s“ speichern?</translation>
    </message>
    <message id="13711">
        <source>Do you want to save the changes to the untitled script?</source>
        <extracomment>Question: save an untitled script</extracomment>
        <translation>Möchten Sie die Änderungen am unbenannten Skript speichern?</translation>
    </message>
    <message id="13712">
        <source>Save Changes</source>
        <extracomment>Caption: save question before New and Open</extracomment>
        <translation>Änderungen speichern</translation>
    </message>
    <message id="13713">
        <source>Open Script</source>
        <extracomment>Caption: Open dialog</extracomment>
        <translation>Skript öffnen</translation>
    </message>
    <message id="13714">
        <source>Save Script As</source>
        <extracomment>Caption: Save As dialog</extracomment>
        <translation>Skript speichern unter</translation>
    </message>
    <message id="13717">
        <source>Exit Script Editor</source>
        <extracomment>Caption: save question when closing</extracomment>
        <translation>Script Editor beenden</translation>
    </message>
    <message id="13718">
        <source>Dup</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Dup</translation>
    </message>
    <message id="13719">
        <source>PA1</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA1</translation>
    </message>
    <message id="13720">
        <source>PA2</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA2</translation>
    </message>
    <message id="13721">
        <source>PA3</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA3</translation>
    </message>
    <message id="13722">
        <source>Session Settings</source>
        <extracomment>Menu command 241</extracomment>
        <translation>Sitzungseinstellungen</translation>
    </message>
    <message id="13723">
        <source>Font Settings</source>
        <extracomment>Menu command 244</extracomment>
        <translation>Schrifteinstellungen</translation>
    </message>
    <message id="13724">
        <source>Open Script</source>
        <extracomment>Caption: errors when opening a script file</extracomment>
        <translation>Skript öffnen</translation>
    </message>
    <message id="13727">
        <source>“%s” is not a script file that this version of the Script Editor can read.</source>
        <extracomment>Message: unknown signature or version, %s is the path</extracomment>
        <translation>„%s“ ist keine Skriptdatei, die diese Version des Script Editors lesen kann.</translation>
    </message>
    <message id="13728">
        <source>The script file “%s” cannot be read, or it is too short to be a script file.</source>
        <extracomment>Message: the signature of a script file cannot be read, %s is the path</extracomment>
        <translation>Die Skriptdatei „%s“ kann nicht gelesen werden oder ist zu kurz für eine Skriptdatei.</translation>
    </message>
    <message id="13729">
        <source>The script file “%s” cannot be created.</source>
        <extracomment>Message: a script file cannot be created, %s is the path</extracomment>
        <translation>Die Skriptdatei „%s“ kann nicht erstellt werden.</translation>
    </message>
    <message id="13730">
        <source>Save Script</source>
        <extracomment>Caption: errors when saving a script file</extracomment>
        <translation>Skript speichern</translation>
    </message>
    <message id="13731">
        <source>The script file “%s” cannot be written.</source>
        <extracomment>Message: a script file cannot be written, %s is the path</extracomment>
        <translation>Die Skriptdatei „%s“ kann nicht geschrieben werden.</translation>
    </message>
    <message id="13732">
        <source>This menu command is not compatible with the mode of the script.</source>
        <extracomment>Message: a menu command that scripts of this host type cannot hold</extracomment>
        <translation>Dieser Menübefehl ist im Modus dieses Skripts nicht verfügbar.</translation>
    </message>
    <message id="13733">
        <source>Script Edit Info</source>
        <extracomment>Caption: refused menu command</extracomment>
        <translation>Skript bearbeiten</translation>
    </message>
    <message id="13734">
        <source>Run Program</source>
        <extracomment>File Operation: caption for Run</extracomment>
        <translation>Programm ausführen</translation>
    </message>
    <message id="13735">
        <source>&amp;Enter the program to run:</source>
        <extracomment>File Operation: label for Run</extracomment>
        <translation>Geben Sie das auszuführende &amp;Programm ein:</translation>
    </message>
    <message id="13736">
        <source>&amp;Enter the session file to open:</source>
        <extracomment>File Operation: label for menu command 202</extracomment>
        <translation>Geben Sie die zu öffnende &amp;Sitzungsdatei ein:</translation>
    </message>
    <message id="13737">
        <source>Save Session As</source>
        <extracomment>File Operation: caption for menu command 204</extracomment>
        <translation>Sitzung speichern unter</translation>
    </message>
    <message id="13738">
        <source>&amp;Enter the session file to save to:</source>
        <extracomment>File Operation: label for menu command 204</extracomment>
        <translation>Geben Sie die &amp;Sitzungsdatei ein, in der gespeichert werden soll:</translation>
    </message>
    <message id="13739">
        <source>&amp;Enter the file to paste from:</source>
        <extracomment>File Operation: label for menu command 219</extracomment>
        <translation>Geben Sie die &amp;Datei ein, aus der eingefügt werden soll:</translation>
    </message>
    <message id="13740">
        <source>Run Macro</source>
        <extracomment>File Operation: caption for menu command 254</extracomment>
        <translation>Makro ausführen</translation>
    </message>
    <message id="13741">
        <source>&amp;Enter the macro to run:</source>
        <extracomment>File Operation: label for menu command 254</extracomment>
        <translation>Geben Sie das auszuführende &amp;Makro ein:</translation>
    </message>
    <message id="13742">
        <source>Edit Macro</source>
        <extracomment>File Operation: caption for menu command 257</extracomment>
        <translation>Makro bearbeiten</translation>
    </message>
    <message id="13743">
        <source>&amp;Enter the macro to edit:</source>
        <extracomment>File Operation: label for menu command 257</extracomment>
        <translation>Geben Sie das zu bearbeitende &amp;Makro ein:</translation>
    </message>
    <message id="13744">
        <source>A value is required in this field.</source>
        <extracomment>Message: a required field is empty</extracomment>
        <translation>In diesem Feld ist eine Angabe erforderlich.</translation>
    </message>
    <message id="13745">
        <source>File Operation</source>
        <extracomment>File Operation: caption of the message for an empty file name</extracomment>
        <translation>Dateioperation</translation>
    </message>
    <message id="13746">
        <source>&amp;Enter the comment:</source>
        <extracomment>Text dialog: label for Comment</extracomment>
        <translation>Geben Sie den &amp;Kommentar ein:</translation>
    </message>
    <message id="13747">
        <source>&amp;Enter the name of the label to go to:</source>
        <extracomment>Text dialog: label for Goto</extracomment>
        <translation>Geben Sie die &amp;Sprungmarke ein, zu der gesprungen werden soll:</translation>
    </message>
    <message id="13748">
        <source>&amp;Enter the name of the label:</source>
        <extracomment>Text dialog: label for Label</extracomment>
        <translation>Geben Sie den Namen der &amp;Sprungmarke ein:</translation>
    </message>
    <message id="13749">
        <source>&amp;Enter the message to display:</source>
        <extracomment>Text dialog: label for Message</extracomment>
        <translation>Geben Sie die anzuzeigende &amp;Meldung ein:</translation>
    </message>
    <message id="13750">
        <source>&amp;Enter the text to type:</source>
        <extracomment>Text dialog: label for Type</extracomment>
        <translation>Geben Sie den einzutippenden &amp;Text ein:</translation>
    </message>
    <message id="13751">
        <source>&amp;Enter the text or &lt;Lu Function&gt; to wait for:</source>
        <extracomment>Wait_For dialog: label of the string; &lt;Lu Function&gt; stays as it is</extracomment>
        <translation>Geben Sie den &amp;Text oder die &lt;Lu Function&gt; ein, auf die gewartet werden soll:</translation>
    </message>
    <message id="13752">
        <source>&amp;Enter the text or &lt;Lu Function&gt; to watch for:</source>
        <extracomment>Watch_For dialog: label of the string; &lt;Lu Function&gt; stays as it is</extracomment>
        <translation>Geben Sie den &amp;Text oder die &lt;Lu Function&gt; ein, auf die geachtet werden soll:</translation>
    </message>
    <message id="13753">
        <source>&amp;Enter time to Wait(seconds):</source>
        <extracomment>Wait dialog: label for Wait</extracomment>
        <translation>Geben Sie die &amp;Wartezeit in Sekunden ein:</translation>
    </message>
    <message id="13754">
        <source>&amp;Enter the number of Keyboard Restores to wait for:</source>
        <extracomment>Wait dialog: label for Wait_Ready</extracomment>
        <translation>Geben Sie die &amp;Anzahl der abzuwartenden Tastaturfreigaben ein:</translation>
    </message>
    <message id="13757">
        <source>Watch_For</source>
        <extracomment>Caption: messages of the Watch_For dialog; the command keyword</extracomment>
        <translation>Watch_For</translation>
    </message>
    <message id="13758">
        <source>Select an action to perform when the watched text appears.</source>
        <extracomment>Watch_For dialog: message when no action is selected</extracomment>
        <translation>Wählen Sie eine Aktion aus, die beim Erscheinen des Textes ausgeführt werden soll.</translation>
    </message>
    <message id="13759">
        <source>If_Input_Is and Watch_For events are not valid for this operation.</source>
        <extracomment>Watch_For dialog: message for an action that it cannot hold; the keywords stay as they are</extracomment>
        <translation>Die Ereignisse If_Input_Is und Watch_For sind für diesen Vorgang nicht zulässig.</translation>
    </message>
    <message id="13807">
        <source>Find Text</source>
        <extracomment>Wait_For dialog: group of the search options</extracomment>
        <translation>Text suchen</translation>
    </message>
    <message id="14201">
        <source>UTS Mode</source>
        <extracomment>Tooltip: mode UTS</extracomment>
        <translation>Modus UTS</translation>
    </message>
    <message id="14202">
        <source>T27 Mode</source>
        <extracomment>Tooltip: mode T27</extracomment>
        <translation>Modus T27</translation>
    </message>
    <message id="14203">
        <source>ICL Mode</source>
        <extracomment>Tooltip: mode ICL</extracomment>
        <translation>Modus ICL</translation>
    </message>
    <message id="14204">
        <source>Switches the script to UTS display sessions.</source>
        <extracomment>Status bar: mode UTS</extracomment>
        <translation>Stellt das Skript auf UTS-Sitzungen um.</translation>
    </message>
    <message id="14205">
        <source>Switches the script to T27 display sessions.</source>
        <extracomment>Status bar: mode T27</extracomment>
        <translation>Stellt das Skript auf T27-Sitzungen um.</translation>
    </message>
    <message id="14206">
        <source>Switches the script to ICL display sessions.</source>
        <extracomment>Status bar: mode ICL</extracomment>
        <translation>Stellt das Skript auf ICL-Sitzungen um.</translation>
    </message>
    <message id="14300">
        <source>Action</source>
        <extracomment>Wait_For and If_Input_Is dialogs: group of the actions</extracomment>
        <translation>Aktion</translation>
    </message>
    <message id="14414">
        <source>Start Position:</source>
        <extracomment>Wait_For dialog: label of the start position</extracomment>
        <translation>Startposition:</translation>
    </message>
    <message id="14415">
        <source>E&amp;xact Position</source>
        <extracomment>Wait_For dialog: check box</extracomment>
        <translation>&amp;Genaue Position</translation>
    </message>
    <message id="14416">
        <source>Ca&amp;se-sensitive Search</source>
        <extracomment>Wait_For dialog: check box</extracomment>
        <translation>Groß-/Kleinschreibung &amp;beachten</translation>
    </message>
    <message id="14417">
        <source>Timeout</source>
        <extracomment>Wait_For dialog: group of the timeout</extracomment>
        <translation>Zeitlimit</translation>
    </message>
    <message id="14418">
        <source>No &amp;Timeout</source>
        <extracomment>Wait_For dialog: radio button</extracomment>
        <translation>&amp;Kein Zeitlimit</translation>
    </message>
    <message id="14419">
        <source>Ti&amp;meout in Seconds:</source>
        <extracomment>Wait_For dialog: radio button before the number of seconds</extracomment>
        <translation>Zeit&amp;limit in Sekunden:</translation>
    </message>
    <message id="14420">
        <source>&amp;Found...</source>
        <extracomment>Wait_For dialog: button for the found action</extracomment>
        <translation>Ge&amp;funden...</translation>
    </message>
    <message id="14421">
        <source>If Found Then </source>
        <extracomment>Wait_For dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Found Then </translation>
    </message>
    <message id="14422">
        <source>&amp;Not Found...</source>
        <extracomment>Wait_For dialog: button for the not-found action</extracomment>
        <translation>&amp;Nicht gefunden...</translation>
    </message>
    <message id="14423">
        <source>If Not Found Then </source>
        <extracomment>Wait_For dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Not Found Then </translation>
    </message>
    <message id="14424">
        <source>OK</source>
        <extracomment>Button: OK, in Wait_For, If_Input_Is and Action</extracomment>
        <translation>OK</translation>
    </message>
    <message id="14545">
        <source>Shift+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Umschalt+Cursor nach oben</translation>
    </message>
    <message id="14546">
        <source>Shift+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Umschalt+Cursor nach unten</translation>
    </message>
    <message id="14547">
        <source>Shift+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Umschalt+Cursor nach rechts</translation>
    </message>
    <message id="14548">
        <source>Shift+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Umschalt+Cursor nach links</translation>
    </message>
    <message id="14549">
        <source>Ctrl+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Cursor nach oben</translation>
    </message>
    <message id="14550">
        <source>Ctrl+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Cursor nach unten</translation>
    </message>
    <message id="14551">
        <source>Ctrl+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Cursor nach rechts</translation>
    </message>
    <message id="14552">
        <source>Ctrl+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Strg+Cursor nach links</translation>
    </message>
    <message id="14553">
        <source>Alt+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor nach oben</translation>
    </message>
    <message id="14554">
        <source>Alt+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor nach unten</translation>
    </message>
    <message id="14555">
        <source>Alt+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor nach rechts</translation>
    </message>
    <message id="14556">
        <source>Alt+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor nach links</translation>
    </message>
    <message id="14557">
        <source>Enter the position to move the cursor to:</source>
        <extracomment>Set_Cursor dialog: heading</extracomment>
        <translation>Geben Sie die Position ein, auf die der Cursor gesetzt werden soll:</translation>
    </message>
    <message id="14592">
        <source>S&amp;how Settings before Starting a Transfer</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>&amp;Einstellungen vor Beginn einer Übertragung anzeigen</translation>
    </message>
    <message id="14833">
        <source>&amp;Enter the application ID for Express Logon:</source>
        <extracomment>Text dialog: label for Express_Logon</extracomment>
        <translation>Geben Sie die &amp;Anwendungs-ID für Express Logon ein:</translation>
    </message>
    <message id="14834">
        <source>Enter the screen area to copy to the clipboard:</source>
        <extracomment>Copy dialog: heading</extracomment>
        <translation>Geben Sie den zu kopierenden Bildschirmbereich ein:</translation>
    </message>
    <message id="14835">
        <source>&amp;Start Row, Column:</source>
        <extracomment>Copy dialog: label of the start row and column</extracomment>
        <translation>&amp;Startzeile, Startspalte:</translation>
    </message>
    <message id="14836">
        <source>&amp;End Row, Column:</source>
        <extracomment>Copy dialog: label of the end row and column</extracomment>
        <translation>&amp;Endzeile, Endspalte:</translation>
    </message>
    <message id="14837">
        <source>Co&amp;py Entire Screen</source>
        <extracomment>Copy dialog: check box</extracomment>
        <translation>&amp;Gesamten Bildschirm kopieren</translation>
    </message>
    <message id="14838">
        <source>Enter the screen position to paste the clipboard to:</source>
        <extracomment>Paste dialog: heading</extracomment>
        <translation>Geben Sie die Bildschirmposition zum Einfügen ein:</translation>
    </message>
    <message id="14839">
        <source>&amp;Paste Row, Column:</source>
        <extracomment>Paste dialog: label of the row and column</extracomment>
        <translation>&amp;Zeile, Spalte:</translation>
    </message>
    <message id="14840">
        <source>Pa&amp;ste to Cursor</source>
        <extracomment>Paste dialog: check box</extracomment>
        <translation>Am &amp;Cursor einfügen</translation>
    </message>
    <message id="14934">
        <source>&amp;Auto-&lt;Clear Screen&gt; before Transfer</source>
        <extracomment>Transfer settings: check box for VM/CMS</extracomment>
        <translation>&amp;Automatisch &lt;Bildschirm löschen&gt; vor der Übertragung</translation>
    </message>
    <message id="15242">
        <source>St&amp;ore Input As:</source>
        <extracomment>Input dialog: label of the variable</extracomment>
        <translation>Eingabe &amp;speichern in:</translation>
    </message>
    <message id="15243">
        <source>&amp;Select or enter the two values to compare:</source>
        <extracomment>If_Input_Is dialog: label of the two operands</extracomment>
        <translation>Wählen oder geben Sie die beiden zu &amp;vergleichenden Werte ein:</translation>
    </message>
    <message id="15244">
        <source>&amp;Equal...</source>
        <extracomment>If_Input_Is dialog: button for the equal action</extracomment>
        <translation>&amp;Gleich...</translation>
    </message>
    <message id="15245">
        <source>If Equal Then </source>
        <extracomment>If_Input_Is dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Equal Then </translation>
    </message>
    <message id="15246">
        <source>&amp;Not Equal...</source>
        <extracomment>If_Input_Is dialog: button for the not-equal action</extracomment>
        <translation>&amp;Ungleich...</translation>
    </message>
    <message id="15247">
        <source>If Not Equal Then </source>
        <extracomment>If_Input_Is dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Not Equal Then </translation>
    </message>
    <message id="15301">
        <source>&amp;Undo</source>
        <extracomment>Menu: Edit, Undo, with nothing to undo</extracomment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message id="15302">
        <source>&amp;Undo %s</source>
        <extracomment>Menu: Edit, Undo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>&amp;Rückgängig: %s</translation>
    </message>
    <message id="15303">
        <source>&amp;Redo</source>
        <extracomment>Menu: Edit, Redo, with nothing to redo</extracomment>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message id="15304">
        <source>&amp;Redo %s</source>
        <extracomment>Menu: Edit, Redo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>&amp;Wiederherstellen: %s</translation>
    </message>
    <message id="15305">
        <source>Undo</source>
        <extracomment>Tooltip: Undo, with nothing to undo</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message id="15306">
        <source>Undo %s</source>
        <extracomment>Tooltip: Undo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>Rückgängig: %s</translation>
    </message>
    <message id="15307">
        <source>Redo</source>
        <extracomment>Tooltip: Redo, with nothing to redo</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message id="15308">
        <source>Redo %s</source>
        <extracomment>Tooltip: Redo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>Wiederherstellen: %s</translation>
    </message>
    <message id="15309">
        <source>Takes back the last change of the script.</source>
        <extracomment>Status bar: Undo</extracomment>
        <translation>Nimmt die letzte Änderung des Skripts zurück.</translation>
    </message>
    <message id="15310">
        <source>Makes the change again that was undone last.</source>
        <extracomment>Status bar: Redo</extracomment>
        <translation>Nimmt die zuletzt rückgängig gemachte Änderung wieder vor.</translation>
    </message>
    <message id="15311">
        <source>Edit Entry</source>
        <extracomment>Step that Undo and Redo name: an entry was edited or replaced</extracomment>
        <translation>Eintrag bearbeiten</translation>
    </message>
    <message id="15312">
        <source>Delete %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>%s löschen</translation>
    </message>
    <message id="15313">
        <source>Cut %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>%s ausschneiden</translation>
    </message>
    <message id="15314">
        <source>Paste %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>%s einfügen</translation>
    </message>
    <message id="15315">
        <source>Move %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>%s verschieben</translation>
    </message>
    <message id="15316">
        <source>To replace this entry, first select what takes its place in the palette %s.</source>
        <extracomment>Status bar: Edit/Replace Entry needs a selected row; %s is the label of the palette</extracomment>
        <translation>Um diesen Eintrag zu ersetzen, wählen Sie zuerst in der Palette %s aus, was an seine Stelle tritt.</translation>
    </message>
    <message id="15317">
        <source>The hidden text of this entry is too long: it can have at most 246 characters.</source>
        <extracomment>Message: hidden text too long; the entry follows</extracomment>
        <translation>Der verborgene Text dieses Eintrags ist zu lang: Er darf höchstens 246 Zeichen haben.</translation>
    </message>
    <message id="15318">
        <source>The hidden text of this entry cannot be enciphered: there is no usable key.</source>
        <extracomment>Message: hidden text that cannot be enciphered; the entry follows</extracomment>
        <translation>Der verborgene Text dieses Eintrags kann nicht verschlüsselt werden: Es gibt keinen brauchbaren Schlüssel.</translation>
    </message>
    <message id="15319">
        <source>Copy as Te&amp;xt</source>
        <extracomment>Menu: Edit, Copy as Text</extracomment>
        <translation>Als &amp;Text kopieren</translation>
    </message>
    <message id="15320">
        <source>Copy as Text</source>
        <extracomment>Tooltip: Copy as Text</extracomment>
        <translation>Als Text kopieren</translation>
    </message>
    <message id="15321">
        <source>Copies the lines of the selected entries for other programs; hidden texts stay hidden.</source>
        <extracomment>Status bar: Copy as Text</extracomment>
        <translation>Kopiert die Zeilen der ausgewählten Einträge für andere Programme; verborgene Texte bleiben verborgen.</translation>
    </message>
    <message id="15322">
        <source>Insert Sc&amp;ript...</source>
        <extracomment>Menu: Entry, Insert Script</extracomment>
        <translation>S&amp;kript einfügen...</translation>
    </message>
    <message id="15323">
        <source>Insert Script</source>
        <extracomment>Tooltip: Insert Script; also the title of its file dialog, and its name as a step that Undo and Redo name</extracomment>
        <translation>Skript einfügen</translation>
    </message>
    <message id="15324">
        <source>Inserts all entries of another script file; that file stays as it is.</source>
        <extracomment>Status bar: Insert Script</extracomment>
        <translation>Fügt alle Einträge einer anderen Skriptdatei ein; diese Datei bleibt, wie sie ist.</translation>
    </message>
    <message id="15325">
        <source>%d of %d entries inserted: the script is full</source>
        <extracomment>Status bar after Insert Script and Paste: number of inserted entries, number of those that there were</extracomment>
        <translation>%d von %d Einträgen eingefügt: Das Skript ist voll</translation>
    </message>
    <message id="15326">
        <source>&amp;Find...</source>
        <extracomment>Menu: Edit, Find</extracomment>
        <translation>&amp;Suchen...</translation>
    </message>
    <message id="15327">
        <source>Find</source>
        <extracomment>Tooltip: Find; also the empty search field</extracomment>
        <translation>Suchen</translation>
    </message>
    <message id="15328">
        <source>Finds entries by their texts.</source>
        <extracomment>Status bar: Find</extracomment>
        <translation>Findet Einträge nach ihren Texten.</translation>
    </message>
    <message id="15329">
        <source>Previous match</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message id="15330">
        <source>Next match</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Nächster Treffer</translation>
    </message>
    <message id="15331">
        <source>%d of %d</source>
        <extracomment>Find bar: number of the current match, number of matches</extracomment>
        <translation>%d von %d</translation>
    </message>
    <message id="15332">
        <source>Not found</source>
        <extracomment>Find bar: there is no match</extracomment>
        <translation>Nicht gefunden</translation>
    </message>
    <message id="15333">
        <source>%d found</source>
        <extracomment>Find bar: number of matches, none of them current</extracomment>
        <translation>%d gefunden</translation>
    </message>
    <message id="15334">
        <source>Close</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Schließen</translation>
    </message>
    <message id="15335">
        <source>The inserted script was written for %s: check its LU functions</source>
        <extracomment>Status bar after Insert Script; %s is the mode of the inserted script, as “VT”</extracomment>
        <translation>Das eingefügte Skript ist für %s geschrieben: Prüfen Sie seine LU-Funktionen</translation>
    </message>
    <message id="15340">
        <source>Help on Se&amp;lection</source>
        <extracomment>Menu: Help, Help on Selection</extracomment>
        <translation>Hilfe zur Aus&amp;wahl</translation>
    </message>
    <message id="15341">
        <source>Help on Selection</source>
        <extracomment>Tool tip of Help on Selection</extracomment>
        <translation>Hilfe zur Auswahl</translation>
    </message>
    <message id="15342">
        <source>Opens the manual at the selected command, entry or host type</source>
        <extracomment>Status bar: Help on Selection</extracomment>
        <translation>Öffnet das Handbuch beim gewählten Befehl, Eintrag oder Hosttyp</translation>
    </message>
    <message id="15343">
        <source>%s - Quendra Script Editor Help</source>
        <extracomment>Help window: title, with that of the page</extracomment>
        <translation>%s - Hilfe zum Quendra Script Editor</translation>
    </message>
    <message id="15344">
        <source>Back</source>
        <extracomment>Help window: button to the page before</extracomment>
        <translation>Zurück</translation>
    </message>
    <message id="15345">
        <source>Forward</source>
        <extracomment>Help window: button to the page that Back left</extracomment>
        <translation>Vorwärts</translation>
    </message>
    <message id="15346">
        <source>Start page</source>
        <extracomment>Help window: button to the first page</extracomment>
        <translation>Startseite</translation>
    </message>
    <message id="15347">
        <source>Contents</source>
        <extracomment>Help window: name of the tree of pages</extracomment>
        <translation>Inhalt</translation>
    </message>
    <message id="15348">
        <source>Search the manual</source>
        <extracomment>Help window: in the empty field for words to search for</extracomment>
        <translation>Handbuch durchsuchen</translation>
    </message>
    <message id="15349">
        <source>Search results</source>
        <extracomment>Help window: name of the list of found pages</extracomment>
        <translation>Suchergebnisse</translation>
    </message>
    <message id="15350">
        <source>Found on %d pages</source>
        <extracomment>Help window: above the list of found pages</extracomment>
        <translation>Auf %d Seiten gefunden</translation>
    </message>
    <message id="15351">
        <source>Found on 1 page</source>
        <extracomment>Help window: above the list of found pages</extracomment>
        <translation>Auf 1 Seite gefunden</translation>
    </message>
    <message id="15352">
        <source>Not found</source>
        <extracomment>Help window: above the empty list of found pages</extracomment>
        <translation>Nicht gefunden</translation>
    </message>
    <message id="15353">
        <source>Page not found</source>
        <extracomment>Help window: heading in place of a page</extracomment>
        <translation>Seite nicht gefunden</translation>
    </message>
    <message id="15354">
        <source>The manual has no page “%s”.</source>
        <extracomment>Help window: in place of a page that is missing</extracomment>
        <translation>Das Handbuch hat keine Seite „%s“.</translation>
    </message>
    <message id="15355">
        <source>The manual is not installed: there are no pages in %s.</source>
        <extracomment>Help window: in place of a page when there is no manual at all; the folder</extracomment>
        <translation>Das Handbuch ist nicht installiert: In %s sind keine Seiten.</translation>
    </message>
    <message id="15356">
        <source>Page</source>
        <extracomment>Help window: name of the part with the page</extracomment>
        <translation>Seite</translation>
    </message>
    <message id="15357">
        <source>Larger text</source>
        <extracomment>Help window: button for larger text</extracomment>
        <translation>Text größer</translation>
    </message>
    <message id="15358">
        <source>Smaller text</source>
        <extracomment>Help window: button for smaller text</extracomment>
        <translation>Text kleiner</translation>
    </message>
    <message id="15380">
        <source>The file “%s” has been changed by another program since it was loaded.

Replace it? The changed file is kept as a backup beside it.</source>
        <extracomment>Question when saving; %s is the path of the script</extracomment>
        <translation>Die Datei „%s“ wurde seit dem Laden von einem anderen Programm geändert.

Soll sie ersetzt werden? Die geänderte Datei bleibt als Sicherungskopie daneben erhalten.</translation>
    </message>
    <message id="15381">
        <source>A VT script file cannot store these entries as they are:

%s
Save, and lose what the file cannot store?</source>
        <extracomment>Question when saving as VT; %s is the numbered lines of the entries, each with its line end</extracomment>
        <translation>Eine VT-Skriptdatei kann diese Einträge nicht so speichern, wie sie sind:

%s
Speichern und verlieren, was die Datei nicht aufnehmen kann?</translation>
    </message>
    <message id="15382">
        <source>%s loaded: the file ends inside an entry (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: the file ends inside an entry; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: die Datei endet mitten in einem Eintrag (Byte %d)</translation>
    </message>
    <message id="15383">
        <source>The old file is kept as %s</source>
        <extracomment>Status bar after saving; %s is a file name</extracomment>
        <translation>Die alte Datei bleibt als %s erhalten</translation>
    </message>
    <message id="15384">
        <source>More commands</source>
        <extracomment>For screen readers: the button with the commands that a narrow window has no room for</extracomment>
        <translation>Weitere Befehle</translation>
    </message>
    <message id="15385">
        <source>Script</source>
        <extracomment>For screen readers: the list with the entries of the script</extracomment>
        <translation>Skript</translation>
    </message>
    <message id="15386">
        <source>converted from an older version, which is kept as %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is a file name</extracomment>
        <translation>aus einer älteren Version umgewandelt, die als %s erhalten bleibt</translation>
    </message>
    <message id="15387">
        <source>the file keeps its older version until it is saved: %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is the system's reason</extracomment>
        <translation>die Datei behält ihre ältere Version, bis sie gespeichert wird: %s</translation>
    </message>
    <message id="15389">
        <source>changes that were not saved are kept as %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is a file name</extracomment>
        <translation>nicht gespeicherte Änderungen sind als %s erhalten</translation>
    </message>
    <message id="15390">
        <source>1 Entry</source>
        <extracomment>One entry in a step that Undo and Redo name: “Delete 1 Entry”</extracomment>
        <translation>1 Eintrag</translation>
    </message>
    <message id="15391">
        <source>%d Entries</source>
        <extracomment>Several entries in a step that Undo and Redo name: “Delete 3 Entries”</extracomment>
        <translation>%d Einträge</translation>
    </message>
    <message id="15392">
        <source>%s %s</source>
        <extracomment>Tooltip of Delete Entry and, with “?” behind it, the question before deleting: “Delete”, then “3 entries”</extracomment>
        <translation>%s: %s</translation>
    </message>
    <message id="15393">
        <source>Actions need a timeout: first select “Timeout in Seconds”.</source>
        <extracomment>Wait_For dialog: note in the timeout group, and tooltip of the action buttons, while they are off</extracomment>
        <translation>Aktionen brauchen ein Zeitlimit: Wählen Sie zuerst „Zeitlimit in Sekunden“ aus.</translation>
    </message>
    <message id="15394">
        <source>%s loaded: unknown command code (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: a record is of an unknown command; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: unbekannter Befehlscode (Byte %d)</translation>
    </message>
    <message id="15395">
        <source>%s loaded: an Input prompt is longer than 1023 characters (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: an Input prompt is longer than its field; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: eine Input-Aufforderung ist länger als 1023 Zeichen (Byte %d)</translation>
    </message>
    <message id="15396">
        <source>%s loaded: actions are nested too deep (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: actions inside of actions; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: Aktionen sind zu tief verschachtelt (Byte %d)</translation>
    </message>
    <message id="15397">
        <source>%s loaded: the file has more than 4096 entries (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: more entries than a script may have; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: die Datei hat mehr als 4096 Einträge (Byte %d)</translation>
    </message>
    <message id="15398">
        <source>%s loaded: the file is longer than any script (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: more bytes than the largest script; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s geladen: die Datei ist länger als jedes Skript (Byte %d)</translation>
    </message>
    <message id="15410">
        <source>Commands</source>
        <extracomment>For screen readers: the toolbar of a window</extracomment>
        <translation>Befehle</translation>
    </message>
    <message id="15480">
        <source>It is no regular file but a pipe, a device or a socket.</source>
        <extracomment>Reason why a script cannot be opened or saved</extracomment>
        <translation>Es ist keine gewöhnliche Datei, sondern eine Pipe, ein Gerät oder ein Socket.</translation>
    </message>
    <message id="15481">
        <source>The folder “%s” takes no file: %s</source>
        <extracomment>Reason why a script cannot be saved; %s is the folder, then the system's reason</extracomment>
        <translation>Der Ordner „%s“ nimmt keine Datei auf: %s</translation>
    </message>
    <message id="15482">
        <source>Saved, but a power cut may undo it: %s</source>
        <extracomment>Status bar after saving; %s is the system's reason</extracomment>
        <translation>Gespeichert, aber ein Stromausfall kann es rückgängig machen: %s</translation>
    </message>
    <message id="15483">
        <source>a power cut may undo the conversion: %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is the system's reason</extracomment>
        <translation>ein Stromausfall kann die Umwandlung rückgängig machen: %s</translation>
    </message>
    <message id="16001">
        <source>The character %s cannot be stored in a script.</source>
        <extracomment>Note under a field: a character that scripts cannot hold was typed or pasted</extracomment>
        <translation>Das Zeichen %s kann in einem Skript nicht gespeichert werden.</translation>
    </message>
    <message id="16002">
        <source>At most %d characters fit here.</source>
        <extracomment>Note under a field: the text would be too long</extracomment>
        <translation>Dieses Feld fasst höchstens %d Zeichen.</translation>
    </message>
    <message id="16003">
        <source>A hidden text can have at most %d characters.</source>
        <extracomment>Note and message: a text that is to be hidden is too long</extracomment>
        <translation>Ein verborgener Text kann höchstens %d Zeichen haben.</translation>
    </message>
    <message id="16004">
        <source>A number from %d to %d</source>
        <extracomment>Note under a number field and its tool tip: the range</extracomment>
        <translation>Eine Zahl von %d bis %d</translation>
    </message>
    <message id="16005">
        <source>%s: enter a number from %d to %d.</source>
        <extracomment>Message: the number in the named field is outside of its range</extracomment>
        <translation>%s: Geben Sie eine Zahl von %d bis %d ein.</translation>
    </message>
    <message id="16006">
        <source>You have no user identity: hidden texts are only obscured, and whoever has the script can read them.</source>
        <extracomment>Type dialog: tool tip of the text and of the check box that hides it</extracomment>
        <translation>Sie haben keine Benutzerkennung: Verborgene Texte werden nur verschleiert, und wer das Skript hat, kann sie lesen.</translation>
    </message>
    <message id="16007">
        <source>Hidden under another user identity</source>
        <extracomment>Type dialog: stands in the empty field of a text that cannot be deciphered</extracomment>
        <translation>Unter einer anderen Benutzerkennung verborgen</translation>
    </message>
    <message id="16008">
        <source>&amp;Date</source>
        <extracomment>Wait_Until dialog: check box before the date</extracomment>
        <translation>&amp;Datum</translation>
    </message>
    <message id="16009">
        <source>&amp;Time</source>
        <extracomment>Wait_Until dialog: check box before the time of day</extracomment>
        <translation>&amp;Uhrzeit</translation>
    </message>
    <message id="16030">
        <source>Only the first line was taken.</source>
        <extracomment>Note under a field of one line: several lines were pasted or dropped</extracomment>
        <translation>Nur die erste Zeile wurde übernommen.</translation>
    </message>
    <message id="16031">
        <source>No &amp;Action</source>
        <extracomment>Action dialog: button that takes the action back</extracomment>
        <translation>Keine &amp;Aktion</translation>
    </message>
    <message id="16032">
        <source>combining mark</source>
        <extracomment>Name of a mark that stands over or under a letter, in the note that it cannot be stored</extracomment>
        <translation>kombinierendes Zeichen</translation>
    </message>
    <message id="16033">
        <source>space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored: a space other than the usual one</extracomment>
        <translation>Leerraum</translation>
    </message>
    <message id="16034">
        <source>invisible character</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored: any other</extracomment>
        <translation>unsichtbares Zeichen</translation>
    </message>
    <message id="16035">
        <source>thin space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>schmaler Leerraum</translation>
    </message>
    <message id="16036">
        <source>zero width space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Leerzeichen ohne Breite</translation>
    </message>
    <message id="16037">
        <source>zero width non-joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Bindehemmer</translation>
    </message>
    <message id="16038">
        <source>zero width joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Breitenloser Verbinder</translation>
    </message>
    <message id="16039">
        <source>left-to-right mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Links-nach-rechts-Zeichen</translation>
    </message>
    <message id="16040">
        <source>“%s” is not there yet: saving makes it</source>
        <extracomment>Status bar after a start with the name of a script that does not exist; %s is the file name</extracomment>
        <translation>„%s“ gibt es noch nicht: Speichern legt die Datei an</translation>
    </message>
    <message id="16041">
        <source>The file “%s” could not be opened as a script.

Replace it? The old file is kept as a backup beside it.</source>
        <extracomment>Question when saving, after a start with the name of a file that was refused; %s is its path</extracomment>
        <translation>Die Datei „%s“ konnte nicht als Skript geöffnet werden.

Ersetzen? Die alte Datei bleibt als Sicherungskopie daneben erhalten.</translation>
    </message>
    <message id="16042">
        <source>Save as VT</source>
        <extracomment>Step that Undo and Redo name: the script has become what a VT file can store of it</extracomment>
        <translation>Als VT speichern</translation>
    </message>
    <message id="16043">
        <source>variation selector</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Variantenselektor</translation>
    </message>
    <message id="16044">
        <source>byte order mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Bytereihenfolge-Markierung</translation>
    </message>
    <message id="16100">
        <source>word joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Wortverbinder</translation>
    </message>
    <message id="16101">
        <source>right-to-left mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>Rechts-nach-links-Zeichen</translation>
    </message>
    <message id="16102">
        <source>narrow no-break space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>schmales geschütztes Leerzeichen</translation>
    </message>
    <message id="16210">
        <source>Hidden texts can be neither read nor stored now, for the system’s cipher fails: %s</source>
        <extracomment>Message: a step of the cipher failed; %s is the system’s reason</extracomment>
        <translation>Verborgene Texte lassen sich jetzt weder lesen noch speichern, denn die Verschlüsselung des Systems schlägt fehl: %s</translation>
    </message>
    <message id="17100">
        <source>Goto %s: no such label</source>
        <extracomment>Check: a jump to a label that is not there, %s is the label</extracomment>
        <translation>Goto %s: Diese Sprungmarke gibt es nicht</translation>
    </message>
    <message id="17101">
        <source>; %s is in step %d</source>
        <extracomment>Check: goes on after the text above: the label that was probably meant and its step</extracomment>
        <translation>; %s steht in Schritt %d</translation>
    </message>
    <message id="17102">
        <source>Label %s is already in step %d, and jumps go there</source>
        <extracomment>Check: a label that was defined before, %s is the label, %d the step of the first</extracomment>
        <translation>Die Sprungmarke %s steht schon in Schritt %d, und Sprünge führen dorthin</translation>
    </message>
    <message id="17103">
        <source>%s: the field %s is empty</source>
        <extracomment>Check: a text that has to be there, the %s are keyword and field name</extracomment>
        <translation>%s: Das Feld %s ist leer</translation>
    </message>
    <message id="17104">
        <source>%s: %s is %s; allowed is %s</source>
        <extracomment>Check: a number outside its range: keyword, field name, number, range such as 1..62</extracomment>
        <translation>%s: %s ist %s; erlaubt ist %s</translation>
    </message>
    <message id="17105">
        <source>Wait_Until: there is no date %s</source>
        <extracomment>Check: a date such as 2024-2-30</extracomment>
        <translation>Wait_Until: Ein Datum %s gibt es nicht</translation>
    </message>
    <message id="17106">
        <source>A terminal of type %s has no key %s</source>
        <extracomment>Check: an LU function that the host type lacks; host type, and group/number of the key</extracomment>
        <translation>Ein Terminal vom Typ %s hat keine Taste %s</translation>
    </message>
    <message id="17107">
        <source>There is no menu command %s</source>
        <extracomment>Check: the number of a menu command outside the table</extracomment>
        <translation>Einen Menübefehl %s gibt es nicht</translation>
    </message>
    <message id="17108">
        <source>A script of type %s cannot store this step; saving would lose it</source>
        <extracomment>Check: %s is the host type</extracomment>
        <translation>Ein Skript vom Typ %s kann diesen Schritt nicht aufnehmen; beim Speichern ginge er verloren</translation>
    </message>
    <message id="17109">
        <source>The transfer has no host file</source>
        <extracomment>Check</extracomment>
        <translation>Der Übertragung fehlt die Hostdatei</translation>
    </message>
    <message id="17110">
        <source>The transfer has no PC file</source>
        <extracomment>Check</extracomment>
        <translation>Der Übertragung fehlt die PC-Datei</translation>
    </message>
    <message id="17111">
        <source>The transfer has neither host file nor PC file</source>
        <extracomment>Check</extracomment>
        <translation>Der Übertragung fehlen Hostdatei und PC-Datei</translation>
    </message>
    <message id="17112">
        <source>The command line of the transfer has %d characters; what follows the first %d is cut off</source>
        <extracomment>Check</extracomment>
        <translation>Die Befehlszeile der Übertragung hat %d Zeichen; was auf die ersten %d folgt, wird abgeschnitten</translation>
    </message>
    <message id="17113">
        <source>Conflict of a merge, %s first: choose between the two sides, and remove the three marks</source>
        <extracomment>Check: %s is the name of the first side</extracomment>
        <translation>Konflikt beim Zusammenführen, zuerst %s: Wählen Sie eine der beiden Seiten, und entfernen Sie die drei Markierungen</translation>
    </message>
    <message id="17114">
        <source>Label %s: no Goto leads here</source>
        <extracomment>Check</extracomment>
        <translation>Sprungmarke %s: Kein Goto führt hierher</translation>
    </message>
    <message id="17115">
        <source>Label %s is an action: a jump to it goes to the whole step</source>
        <extracomment>Check</extracomment>
        <translation>Die Sprungmarke %s ist eine Aktion: Ein Sprung dorthin führt zum ganzen Schritt</translation>
    </message>
    <message id="17116">
        <source>This step is never reached</source>
        <extracomment>Check</extracomment>
        <translation>Dieser Schritt wird nie erreicht</translation>
    </message>
    <message id="17117">
        <source>The steps from %d to %d form a loop in which nothing waits</source>
        <extracomment>Check</extracomment>
        <translation>Die Schritte von %d bis %d bilden eine Schleife, in der nichts wartet</translation>
    </message>
    <message id="17118">
        <source>No Input stores %s</source>
        <extracomment>Check: a variable is used that is never set</extracomment>
        <translation>Kein Input speichert %s</translation>
    </message>
    <message id="17119">
        <source>A password is typed in clear; make a new Type that hides it</source>
        <extracomment>Check</extracomment>
        <translation>Ein Kennwort wird im Klartext getippt; legen Sie ein neues Type an, das es verbirgt</translation>
    </message>
    <message id="17120">
        <source>The password of the host file is stored in clear</source>
        <extracomment>Check</extracomment>
        <translation>Das Kennwort der Hostdatei ist im Klartext gespeichert</translation>
    </message>
    <message id="17121">
        <source>Your user identity does not open the hidden text</source>
        <extracomment>Check</extracomment>
        <translation>Ihre Benutzerkennung öffnet den verborgenen Text nicht</translation>
    </message>
    <message id="17122">
        <source>Wait_For “%s” gives up at once: its timeout is 0 seconds</source>
        <extracomment>Check</extracomment>
        <translation>Wait_For „%s“ gibt sofort auf: Das Zeitlimit ist 0 Sekunden</translation>
    </message>
    <message id="17123">
        <source>Wait_For “%s” has no timeout</source>
        <extracomment>Check</extracomment>
        <translation>Wait_For „%s“ hat kein Zeitlimit</translation>
    </message>
    <message id="17124">
        <source>No Clear_Watch ends this Watch_For</source>
        <extracomment>Check</extracomment>
        <translation>Kein Clear_Watch beendet dieses Watch_For</translation>
    </message>
    <message id="17125">
        <source>You have no user identity: hidden texts are only obscured</source>
        <extracomment>Check</extracomment>
        <translation>Sie haben keine Benutzerkennung: Verborgene Texte sind nur verschleiert</translation>
    </message>
    <message id="17200">
        <source>&amp;View</source>
        <extracomment>Menu bar: View</extracomment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message id="17201">
        <source>&amp;Problems</source>
        <extracomment>Menu: View, Problems</extracomment>
        <translation>&amp;Probleme</translation>
    </message>
    <message id="17202">
        <source>Problems</source>
        <extracomment>Tooltip: Problems; also the title of the list of problems</extracomment>
        <translation>Probleme</translation>
    </message>
    <message id="17203">
        <source>Shows or hides the list of what is wrong with the script, or looks wrong.</source>
        <extracomment>Status bar: Problems</extracomment>
        <translation>Zeigt oder verbirgt die Liste dessen, was an dem Skript falsch ist oder falsch aussieht.</translation>
    </message>
    <message id="17204">
        <source>&amp;Step Numbers and Jumps</source>
        <extracomment>Menu: View, Step Numbers and Jumps</extracomment>
        <translation>&amp;Schrittnummern und Sprünge</translation>
    </message>
    <message id="17205">
        <source>Step Numbers and Jumps</source>
        <extracomment>Tooltip: Step Numbers and Jumps</extracomment>
        <translation>Schrittnummern und Sprünge</translation>
    </message>
    <message id="17206">
        <source>Shows or hides the numbers of the steps and the arrows of jumps in the script list.</source>
        <extracomment>Status bar: Step Numbers and Jumps</extracomment>
        <translation>Zeigt oder verbirgt die Nummern der Schritte und die Pfeile der Sprünge in der Skriptliste.</translation>
    </message>
    <message id="17207">
        <source>&amp;Next Problem</source>
        <extracomment>Menu: View, Next Problem</extracomment>
        <translation>&amp;Nächstes Problem</translation>
    </message>
    <message id="17208">
        <source>Next Problem</source>
        <extracomment>Tooltip: Next Problem</extracomment>
        <translation>Nächstes Problem</translation>
    </message>
    <message id="17209">
        <source>Goes to the next step with a problem and tells it.</source>
        <extracomment>Status bar: Next Problem</extracomment>
        <translation>Geht zum nächsten Schritt mit einem Problem und nennt es.</translation>
    </message>
    <message id="17210">
        <source>Pre&amp;vious Problem</source>
        <extracomment>Menu: View, Previous Problem</extracomment>
        <translation>&amp;Voriges Problem</translation>
    </message>
    <message id="17211">
        <source>Previous Problem</source>
        <extracomment>Tooltip: Previous Problem</extracomment>
        <translation>Voriges Problem</translation>
    </message>
    <message id="17212">
        <source>Goes to the step before with a problem and tells it.</source>
        <extracomment>Status bar: Previous Problem</extracomment>
        <translation>Geht zum vorigen Schritt mit einem Problem und nennt es.</translation>
    </message>
    <message id="17213">
        <source>&amp;Quick Fix</source>
        <extracomment>Menu: Edit, Quick Fix, when there is none</extracomment>
        <translation>Schne&amp;llkorrektur</translation>
    </message>
    <message id="17214">
        <source>Quick Fix</source>
        <extracomment>Tooltip: Quick Fix; also its button</extracomment>
        <translation>Schnellkorrektur</translation>
    </message>
    <message id="17215">
        <source>Mends the problem of the current step where there is one sensible way.</source>
        <extracomment>Status bar: Quick Fix</extracomment>
        <translation>Behebt das Problem des aktuellen Schritts, wo es einen sinnvollen Weg gibt.</translation>
    </message>
    <message id="17216">
        <source>&amp;Quick Fix: %s</source>
        <extracomment>Menu: Edit, Quick Fix, %s is what it would do</extracomment>
        <translation>Schne&amp;llkorrektur: %s</translation>
    </message>
    <message id="17217">
        <source>Quick Fix: %s</source>
        <extracomment>Tooltip: Quick Fix, %s is what it would do</extracomment>
        <translation>Schnellkorrektur: %s</translation>
    </message>
    <message id="17218">
        <source>&amp;Go to Step...</source>
        <extracomment>Menu: Edit, Go to Step</extracomment>
        <translation>&amp;Gehe zu Schritt...</translation>
    </message>
    <message id="17219">
        <source>Go to Step</source>
        <extracomment>Tooltip: Go to Step; also its bar</extracomment>
        <translation>Gehe zu Schritt</translation>
    </message>
    <message id="17220">
        <source>Goes to the step of a number.</source>
        <extracomment>Status bar: Go to Step</extracomment>
        <translation>Geht zum Schritt mit einer Nummer.</translation>
    </message>
    <message id="17221">
        <source>Go to step (1 to %s):</source>
        <extracomment>Before the field of Go to Step, %s is the number of steps</extracomment>
        <translation>Gehe zu Schritt (1 bis %s):</translation>
    </message>
    <message id="17222">
        <source>There is no step “%s”; enter a number from 1 to %s</source>
        <extracomment>Go to Step: what was entered, and the number of steps</extracomment>
        <translation>Einen Schritt „%s“ gibt es nicht; geben Sie eine Zahl von 1 bis %s ein</translation>
    </message>
    <message id="17223">
        <source>Step %s of %s</source>
        <extracomment>Status bar: number of the current step, number of steps</extracomment>
        <translation>Schritt %s von %s</translation>
    </message>
    <message id="17224">
        <source>Step %s: %s [%s]</source>
        <extracomment>A line of the list of problems: number of the step, message, rule</extracomment>
        <translation>Schritt %s: %s [%s]</translation>
    </message>
    <message id="17225">
        <source>Error: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Fehler: %s [%s]</translation>
    </message>
    <message id="17226">
        <source>Warning: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Warnung: %s [%s]</translation>
    </message>
    <message id="17227">
        <source>Note: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Hinweis: %s [%s]</translation>
    </message>
    <message id="17228">
        <source>1 error</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>1 Fehler</translation>
    </message>
    <message id="17229">
        <source>%s errors</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>%s Fehler</translation>
    </message>
    <message id="17230">
        <source>1 warning</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>1 Warnung</translation>
    </message>
    <message id="17231">
        <source>%s warnings</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>%s Warnungen</translation>
    </message>
    <message id="17232">
        <source>Show the list of problems</source>
        <extracomment>Tooltip of the number of problems in the status bar</extracomment>
        <translation>Liste der Probleme zeigen</translation>
    </message>
    <message id="17233">
        <source>No problems found</source>
        <extracomment>Status bar after Next Problem, and in the empty list of problems</extracomment>
        <translation>Keine Probleme gefunden</translation>
    </message>
    <message id="17234">
        <source>Change to Label %s</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name; %s is the label that a Goto goes to then</extracomment>
        <translation>Sprungmarke in %s ändern</translation>
    </message>
    <message id="17235">
        <source>Add Label %s at the End</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Sprungmarke %s am Ende anfügen</translation>
    </message>
    <message id="17236">
        <source>Remove Label %s</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Sprungmarke %s entfernen</translation>
    </message>
    <message id="17237">
        <source>Hide Password</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Kennwort verbergen</translation>
    </message>
    <message id="17238">
        <source>The current step has no problem</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>Der aktuelle Schritt hat kein Problem</translation>
    </message>
    <message id="17239">
        <source>This problem has no quick fix: how to mend it is yours to decide</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>Für dieses Problem gibt es keine Schnellkorrektur: Wie es zu beheben ist, entscheiden Sie</translation>
    </message>
    <message id="17240">
        <source>There is no room for the missing label: the script is full</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>Für die fehlende Sprungmarke ist kein Platz: Das Skript ist voll</translation>
    </message>
    <message id="17241">
        <source>&amp;Go to Step</source>
        <extracomment>Menu of a problem: go to its step</extracomment>
        <translation>&amp;Gehe zum Schritt</translation>
    </message>
    <message id="17242">
        <source>&amp;Help on Checks</source>
        <extracomment>Menu of a problem: the page about checks</extracomment>
        <translation>&amp;Hilfe zu Prüfungen</translation>
    </message>
    <message id="17250">
        <source>Find &amp;Next</source>
        <extracomment>Menu Edit</extracomment>
        <translation>&amp;Nächstes suchen</translation>
    </message>
    <message id="17251">
        <source>Goes to the next match.</source>
        <extracomment>Status bar: Find Next</extracomment>
        <translation>Geht zum nächsten Treffer.</translation>
    </message>
    <message id="17252">
        <source>Find Pre&amp;vious</source>
        <extracomment>Menu Edit</extracomment>
        <translation>&amp;Vorheriges suchen</translation>
    </message>
    <message id="17253">
        <source>Goes to the previous match.</source>
        <extracomment>Status bar: Find Previous</extracomment>
        <translation>Geht zum vorherigen Treffer.</translation>
    </message>
    <message id="17254">
        <source>R&amp;eplace...</source>
        <extracomment>Menu Edit</extracomment>
        <translation>Erset&amp;zen...</translation>
    </message>
    <message id="17255">
        <source>Replace</source>
        <extracomment>Tooltip: Replace; also the name of the step in Undo and the title of its messages</extracomment>
        <translation>Ersetzen</translation>
    </message>
    <message id="17256">
        <source>Replaces texts and numbers in the entries.</source>
        <extracomment>Status bar: Replace</extracomment>
        <translation>Ersetzt Texte und Zahlen in den Einträgen.</translation>
    </message>
    <message id="17257">
        <source>Rename La&amp;bel...</source>
        <extracomment>Menu Entry</extracomment>
        <translation>Sprungmarke &amp;umbenennen...</translation>
    </message>
    <message id="17258">
        <source>Rename Label</source>
        <extracomment>Tooltip: Rename Label; also the dialog's title and the name of the step in Undo</extracomment>
        <translation>Sprungmarke umbenennen</translation>
    </message>
    <message id="17259">
        <source>Renames the label of the current entry in the whole script.</source>
        <extracomment>Status bar: Rename Label</extracomment>
        <translation>Benennt die Sprungmarke des aktuellen Eintrags im ganzen Skript um.</translation>
    </message>
    <message id="17260">
        <source>&amp;Go to Label</source>
        <extracomment>Menu Entry</extracomment>
        <translation>Zur Sprungmarke &amp;gehen</translation>
    </message>
    <message id="17261">
        <source>Go to Label</source>
        <extracomment>Tooltip: Go to Label; also the title of the dialog that asks for one of several</extracomment>
        <translation>Zur Sprungmarke gehen</translation>
    </message>
    <message id="17262">
        <source>Goes to the label that the current entry jumps to.</source>
        <extracomment>Status bar: Go to Label</extracomment>
        <translation>Geht zu der Sprungmarke, zu der der aktuelle Eintrag springt.</translation>
    </message>
    <message id="17263">
        <source>Go Bac&amp;k</source>
        <extracomment>Menu Entry</extracomment>
        <translation>&amp;Zurückgehen</translation>
    </message>
    <message id="17264">
        <source>Go Back</source>
        <extracomment>Tooltip: Go Back</extracomment>
        <translation>Zurückgehen</translation>
    </message>
    <message id="17265">
        <source>Goes back to the entry from which you went to a label.</source>
        <extracomment>Status bar: Go Back</extracomment>
        <translation>Geht zu dem Eintrag zurück, von dem aus Sie zu einer Sprungmarke gegangen sind.</translation>
    </message>
    <message id="17266">
        <source>Find &amp;Uses...</source>
        <extracomment>Menu Entry</extracomment>
        <translation>&amp;Verwendungen suchen...</translation>
    </message>
    <message id="17267">
        <source>Find Uses</source>
        <extracomment>Tooltip: Find Uses</extracomment>
        <translation>Verwendungen suchen</translation>
    </message>
    <message id="17268">
        <source>Lists the entries that go to the label of the current entry.</source>
        <extracomment>Status bar: Find Uses</extracomment>
        <translation>Zeigt die Einträge, die zur Sprungmarke des aktuellen Eintrags springen.</translation>
    </message>
    <message id="17269">
        <source>Match case</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message id="17270">
        <source>Whole words</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Nur ganze Wörter</translation>
    </message>
    <message id="17271">
        <source>Regular expression</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message id="17272">
        <source>Replace with</source>
        <extracomment>Find bar: the empty field of the new text</extracomment>
        <translation>Ersetzen durch</translation>
    </message>
    <message id="17273">
        <source>Re&amp;place</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Er&amp;setzen</translation>
    </message>
    <message id="17274">
        <source>Replace A&amp;ll</source>
        <extracomment>Find bar: button</extracomment>
        <translation>A&amp;lle ersetzen</translation>
    </message>
    <message id="17275">
        <source>Not valid at character %d: %s</source>
        <extracomment>Find bar: place in a regular expression, what is wrong</extracomment>
        <translation>Ungültig bei Zeichen %d: %s</translation>
    </message>
    <message id="17276">
        <source>too many ways to match: not all is searched</source>
        <extracomment>Find bar, behind the number of matches: a regular expression was given up</extracomment>
        <translation>zu viele Möglichkeiten: nicht alles ist durchsucht</translation>
    </message>
    <message id="17277">
        <source>Replace All</source>
        <extracomment>Step in Undo</extracomment>
        <translation>Alle ersetzen</translation>
    </message>
    <message id="17278">
        <source>Fields replaced: %d</source>
        <extracomment>Status bar after Replace All</extracomment>
        <translation>Ersetzte Felder: %d</translation>
    </message>
    <message id="17279">
        <source>These fields cannot be replaced:

%s

Replace in all other fields?</source>
        <extracomment>Replace All; %s is a list</extracomment>
        <translation>Diese Felder lassen sich nicht ersetzen:

%s

In allen anderen Feldern ersetzen?</translation>
    </message>
    <message id="17280">
        <source>These fields cannot be replaced, and nothing was changed:

%s</source>
        <extracomment>Replace; %s is a list</extracomment>
        <translation>Diese Felder lassen sich nicht ersetzen, und nichts wurde geändert:

%s</translation>
    </message>
    <message id="17281">
        <source>Step %d, %s: %s</source>
        <extracomment>Number of an entry, field, why it cannot be changed</extracomment>
        <translation>Schritt %d, %s: %s</translation>
    </message>
    <message id="17282">
        <source>nothing would be left</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>es bliebe nichts übrig</translation>
    </message>
    <message id="17283">
        <source>longer than the field holds</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>länger, als das Feld fasst</translation>
    </message>
    <message id="17284">
        <source>a character that a script cannot store</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>ein Zeichen, das ein Skript nicht speichern kann</translation>
    </message>
    <message id="17285">
        <source>no number that the field can hold</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>keine Zahl, die das Feld fasst</translation>
    </message>
    <message id="17286">
        <source>Variables</source>
        <extracomment>Dialog of Type: button that offers the names of variables</extracomment>
        <translation>Variablen</translation>
    </message>
    <message id="17287">
        <source>Only texts and numbers of entries can be replaced</source>
        <extracomment>Status bar: what was found is the name of a command or a key</extracomment>
        <translation>Nur Texte und Zahlen von Einträgen lassen sich ersetzen</translation>
    </message>
    <message id="17288">
        <source>Text</source>
        <extracomment>Field of an entry</extracomment>
        <translation>Text</translation>
    </message>
    <message id="17289">
        <source>&amp;Label:</source>
        <extracomment>Rename Label: which one of several</extracomment>
        <translation>&amp;Sprungmarke:</translation>
    </message>
    <message id="17290">
        <source>Second value</source>
        <extracomment>Field of If_Input_Is</extracomment>
        <translation>Zweiter Wert</translation>
    </message>
    <message id="17291">
        <source>Number</source>
        <extracomment>Field of Wait and Wait_Ready</extracomment>
        <translation>Zahl</translation>
    </message>
    <message id="17292">
        <source>Labels of this script</source>
        <extracomment>Dialog of Goto: button that offers them</extracomment>
        <translation>Sprungmarken dieses Skripts</translation>
    </message>
    <message id="17293">
        <source>Date and time</source>
        <extracomment>Field of Wait_Until</extracomment>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message id="17294">
        <source>Further number</source>
        <extracomment>Field of a menu command</extracomment>
        <translation>Weitere Zahl</translation>
    </message>
    <message id="17295">
        <source>&amp;New name:</source>
        <extracomment>Rename Label</extracomment>
        <translation>&amp;Neuer Name:</translation>
    </message>
    <message id="17296">
        <source>Steps that change: %d</source>
        <extracomment>Rename Label</extracomment>
        <translation>Schritte, die sich ändern: %d</translation>
    </message>
    <message id="17297">
        <source>There is a label of that name already, in step %d.</source>
        <extracomment>Rename Label</extracomment>
        <translation>Es gibt schon eine Sprungmarke dieses Namens, in Schritt %d.</translation>
    </message>
    <message id="17298">
        <source>Uses of %s</source>
        <extracomment>Title of the list; %s is the name of a label</extracomment>
        <translation>Verwendungen von %s</translation>
    </message>
    <message id="17299">
        <source>Nothing goes to %s</source>
        <extracomment>Status bar; %s is the name of a label</extracomment>
        <translation>Nichts springt zu %s</translation>
    </message>
    <message id="17300">
        <source>Compare With &amp;File...</source>
        <extracomment>Menu: File, Compare With File</extracomment>
        <translation>Mit &amp;Datei vergleichen...</translation>
    </message>
    <message id="17301">
        <source>Compare With File</source>
        <extracomment>Toolbar</extracomment>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message id="17302">
        <source>Compares the script with another script file, entry by entry.</source>
        <extracomment>Status bar</extracomment>
        <translation>Vergleicht das Skript Eintrag für Eintrag mit einer anderen Skriptdatei.</translation>
    </message>
    <message id="17303">
        <source>Compare With Sa&amp;ved</source>
        <extracomment>Menu: File, Compare With Saved</extracomment>
        <translation>Mit &amp;gespeichertem Stand vergleichen</translation>
    </message>
    <message id="17304">
        <source>Compare With Saved</source>
        <extracomment>Toolbar</extracomment>
        <translation>Mit gespeichertem Stand vergleichen</translation>
    </message>
    <message id="17305">
        <source>Shows what has changed since the script was opened or last saved.</source>
        <extracomment>Status bar</extracomment>
        <translation>Zeigt, was sich seit dem Öffnen oder letzten Speichern des Skripts geändert hat.</translation>
    </message>
    <message id="17306">
        <source>&amp;Resolve Conflicts...</source>
        <extracomment>Menu: File, Resolve Conflicts</extracomment>
        <translation>&amp;Konflikte lösen...</translation>
    </message>
    <message id="17307">
        <source>Resolve Conflicts</source>
        <extracomment>Toolbar</extracomment>
        <translation>Konflikte lösen</translation>
    </message>
    <message id="17308">
        <source>Chooses between the two sides where a merge found conflicts.</source>
        <extracomment>Status bar</extracomment>
        <translation>Wählt zwischen den beiden Seiten, wo beim Zusammenführen Konflikte blieben.</translation>
    </message>
    <message id="17309">
        <source>%s and %s  -  Compare</source>
        <extracomment>Title of the window that compares; %s are the names of the sides</extracomment>
        <translation>%s und %s  -  Vergleich</translation>
    </message>
    <message id="17310">
        <source>%s  -  Resolve Conflicts</source>
        <extracomment>Title of the same window for the conflicts of a merge; %s is the script</extracomment>
        <translation>%s  -  Konflikte lösen</translation>
    </message>
    <message id="17311">
        <source>%s, as saved</source>
        <extracomment>Name of a side; %s is the script</extracomment>
        <translation>%s, wie gespeichert</translation>
    </message>
    <message id="17312">
        <source>%s, in the editor</source>
        <extracomment>Name of a side; %s is the script</extracomment>
        <translation>%s, im Editor</translation>
    </message>
    <message id="17313">
        <source>The scripts are the same</source>
        <extracomment>Summary</extracomment>
        <translation>Die Skripte sind gleich</translation>
    </message>
    <message id="17314">
        <source>1 change</source>
        <extracomment>Summary</extracomment>
        <translation>1 Änderung</translation>
    </message>
    <message id="17315">
        <source>%d changes</source>
        <extracomment>Summary</extracomment>
        <translation>%d Änderungen</translation>
    </message>
    <message id="17316">
        <source>Change %d of %d</source>
        <extracomment>Summary: which change is the current one</extracomment>
        <translation>Änderung %d von %d</translation>
    </message>
    <message id="17317">
        <source>No conflicts</source>
        <extracomment>Summary</extracomment>
        <translation>Keine Konflikte</translation>
    </message>
    <message id="17318">
        <source>1 conflict</source>
        <extracomment>Summary</extracomment>
        <translation>1 Konflikt</translation>
    </message>
    <message id="17319">
        <source>%d conflicts</source>
        <extracomment>Summary</extracomment>
        <translation>%d Konflikte</translation>
    </message>
    <message id="17320">
        <source>Conflict %d of %d</source>
        <extracomment>Summary: which conflict is the current one</extracomment>
        <translation>Konflikt %d von %d</translation>
    </message>
    <message id="17321">
        <source>; the host types differ: %s and %s</source>
        <extracomment>Summary: goes on after the number of changes; %s are host types</extracomment>
        <translation>; die Hosttypen sind verschieden: %s und %s</translation>
    </message>
    <message id="17322">
        <source>; on from the start</source>
        <extracomment>Summary: goes on after the position</extracomment>
        <translation>; weiter von vorn</translation>
    </message>
    <message id="17323">
        <source>; on from the end</source>
        <extracomment>Summary: goes on after the position</extracomment>
        <translation>; weiter von hinten</translation>
    </message>
    <message id="17324">
        <source>Next change</source>
        <extracomment>Tool tip of a button</extracomment>
        <translation>Nächste Änderung</translation>
    </message>
    <message id="17325">
        <source>Previous change</source>
        <extracomment>Tool tip of a button</extracomment>
        <translation>Vorherige Änderung</translation>
    </message>
    <message id="17326">
        <source>&amp;Take Over</source>
        <extracomment>Button; also the name of the step for Undo</extracomment>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message id="17327">
        <source>Keep &amp;Ours</source>
        <extracomment>Button: the left side of a conflict</extracomment>
        <translation>&amp;Eigene behalten</translation>
    </message>
    <message id="17328">
        <source>Keep &amp;Theirs</source>
        <extracomment>Button: the right side of a conflict</extracomment>
        <translation>&amp;Andere behalten</translation>
    </message>
    <message id="17329">
        <source>Keep &amp;Both</source>
        <extracomment>Button: both sides of a conflict</extracomment>
        <translation>&amp;Beide behalten</translation>
    </message>
    <message id="17330">
        <source>changed</source>
        <extracomment>What became of an entry; also of a hidden text</extracomment>
        <translation>geändert</translation>
    </message>
    <message id="17331">
        <source>only on the left</source>
        <extracomment>What became of an entry</extracomment>
        <translation>nur links</translation>
    </message>
    <message id="17332">
        <source>only on the right</source>
        <extracomment>What became of an entry</extracomment>
        <translation>nur rechts</translation>
    </message>
    <message id="17333">
        <source>moved, entry %d on the right</source>
        <extracomment>What became of an entry; %d is its number on the other side</extracomment>
        <translation>verschoben, rechts Eintrag %d</translation>
    </message>
    <message id="17334">
        <source>moved, entry %d on the left</source>
        <extracomment>What became of an entry; %d is its number on the other side</extracomment>
        <translation>verschoben, links Eintrag %d</translation>
    </message>
    <message id="17335">
        <source>conflict</source>
        <extracomment>What an entry is part of</extracomment>
        <translation>Konflikt</translation>
    </message>
    <message id="17336">
        <source>no entry on this side</source>
        <extracomment>Where one side of a conflict has no entry</extracomment>
        <translation>auf dieser Seite kein Eintrag</translation>
    </message>
    <message id="17337">
        <source>left, entry %d: %s</source>
        <extracomment>One side of a row, as it is read aloud; number and line of the entry</extracomment>
        <translation>links, Eintrag %d: %s</translation>
    </message>
    <message id="17338">
        <source>right, entry %d: %s</source>
        <extracomment>One side of a row, as it is read aloud; number and line of the entry</extracomment>
        <translation>rechts, Eintrag %d: %s</translation>
    </message>
    <message id="17339">
        <source>the same</source>
        <extracomment>What became of an entry</extracomment>
        <translation>gleich</translation>
    </message>
    <message id="17340">
        <source>Take Over: entry %d of the left side replaces entry %d of the script</source>
        <extracomment>What the button would do; the numbers of entries</extracomment>
        <translation>Übernehmen: Eintrag %d der linken Seite ersetzt Eintrag %d des Skripts</translation>
    </message>
    <message id="17341">
        <source>Take Over: entry %d of the left side is inserted into the script</source>
        <extracomment>What the button would do</extracomment>
        <translation>Übernehmen: Eintrag %d der linken Seite wird in das Skript eingefügt</translation>
    </message>
    <message id="17342">
        <source>Take Over: entry %d is removed from the script</source>
        <extracomment>What the button would do</extracomment>
        <translation>Übernehmen: Eintrag %d wird aus dem Skript entfernt</translation>
    </message>
    <message id="17343">
        <source>Take Over: entry %d of the script moves to where it is on the left</source>
        <extracomment>What the button would do</extracomment>
        <translation>Übernehmen: Eintrag %d des Skripts kommt dahin, wo er links steht</translation>
    </message>
    <message id="17344">
        <source>Take Over: the %d selected changes become as on the left</source>
        <extracomment>What the button would do</extracomment>
        <translation>Übernehmen: die %d ausgewählten Änderungen werden wie links</translation>
    </message>
    <message id="17345">
        <source>What you keep replaces the entries %d to %d of the script</source>
        <extracomment>What the buttons would do; %d are numbers of entries</extracomment>
        <translation>Was Sie behalten, ersetzt die Einträge %d bis %d des Skripts</translation>
    </message>
    <message id="17346">
        <source>Take Over</source>
        <extracomment>Name of a step for Undo</extracomment>
        <translation>Übernehmen</translation>
    </message>
    <message id="17347">
        <source>Left alone, because they lie within each other or lack their counterparts: the conflict marks in the entries %s</source>
        <extracomment>Message in the window; %s are numbers of entries</extracomment>
        <translation>Bleiben stehen, weil sie ineinander liegen oder ihr Gegenstück fehlt: die Konfliktmarken in den Einträgen %s</translation>
    </message>
    <message id="17348">
        <source>hidden</source>
        <extracomment>In place of the value of a field</extracomment>
        <translation>verborgen</translation>
    </message>
    <message id="17349">
        <source>(none)</source>
        <extracomment>In place of the value of a field</extracomment>
        <translation>(keiner)</translation>
    </message>
    <message id="17350">
        <source>Quendra Script Editor Help</source>
        <extracomment>Help window: title over the start page</extracomment>
        <translation>Hilfe zum Quendra Script Editor</translation>
    </message>
    <message id="17351">
        <source>Find in this page</source>
        <extracomment>Help window: field that searches the page</extracomment>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message id="17352">
        <source>No conflict that can be resolved here</source>
        <extracomment>Window of conflicts: there are only marks that make up none</extracomment>
        <translation>Kein Konflikt, der sich hier lösen lässt</translation>
    </message>
    <message id="17353">
        <source>The script would then have more than %d entries. Nothing was changed.</source>
        <extracomment>Message when changes are taken over; %d is the most that a script can have</extracomment>
        <translation>Das Skript hätte dann mehr als %d Einträge. Es wurde nichts geändert.</translation>
    </message>
    <message id="17400">
        <source>&amp;Insert by Name...</source>
        <extracomment>Menu Edit: opens a search over everything that can be inserted</extracomment>
        <translation>Nach Na&amp;men einfügen...</translation>
    </message>
    <message id="17401">
        <source>Insert by Name</source>
        <extracomment>Tooltip: Insert by Name; also its panel</extracomment>
        <translation>Nach Namen einfügen</translation>
    </message>
    <message id="17402">
        <source>Finds a script event, an LU function or a menu command by its name and inserts it.</source>
        <extracomment>Status bar: Insert by Name</extracomment>
        <translation>Findet ein Skriptereignis, eine LU-Funktion oder einen Menübefehl am Namen und fügt es ein.</translation>
    </message>
    <message id="17403">
        <source>Next &amp;List</source>
        <extracomment>Menu View: moves the keyboard focus</extracomment>
        <translation>Nächste &amp;Liste</translation>
    </message>
    <message id="17404">
        <source>Next List</source>
        <extracomment>Tooltip: Next List</extracomment>
        <translation>Nächste Liste</translation>
    </message>
    <message id="17405">
        <source>Goes on from the script to the palettes, from one to the next, and back to the script.</source>
        <extracomment>Status bar: Next List</extracomment>
        <translation>Geht vom Skript weiter zu den Paletten, von einer zur nächsten und zurück zum Skript.</translation>
    </message>
    <message id="17406">
        <source>P&amp;revious List</source>
        <extracomment>Menu View: moves the keyboard focus</extracomment>
        <translation>Vo&amp;rige Liste</translation>
    </message>
    <message id="17407">
        <source>Previous List</source>
        <extracomment>Tooltip: Previous List</extracomment>
        <translation>Vorige Liste</translation>
    </message>
    <message id="17408">
        <source>Goes round script and palettes the other way.</source>
        <extracomment>Status bar: Previous List</extracomment>
        <translation>Geht andersherum durch Skript und Paletten.</translation>
    </message>
    <message id="17409">
        <source>Name or initials</source>
        <extracomment>Insert by Name: in the empty field</extracomment>
        <translation>Name oder Anfangsbuchstaben</translation>
    </message>
    <message id="17410">
        <source>What can be inserted</source>
        <extracomment>Insert by Name: accessible name of the list</extracomment>
        <translation>Was eingefügt werden kann</translation>
    </message>
    <message id="17411">
        <source>Nothing is called “%s”</source>
        <extracomment>Insert by Name: in place of the list, %s is what was typed</extracomment>
        <translation>Nichts heißt „%s“</translation>
    </message>
    <message id="17412">
        <source>%s, %s</source>
        <extracomment>Insert by Name: a row as a screen reader tells it; a name, and the title of its palette</extracomment>
        <translation>%s, %s</translation>
    </message>
    <message id="17450">
        <source>This script has no steps yet. Double-click a script event on the right, or select it and press Return, to make the first one.</source>
        <extracomment>In the empty script list</extracomment>
        <translation>Dieses Skript hat noch keine Schritte. Den ersten macht ein Doppelklick auf ein Skriptereignis rechts oder die Eingabetaste darauf.</translation>
    </message>
    <message id="17451">
        <source>Dupl&amp;icate</source>
        <extracomment>Menu item</extracomment>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message id="17452">
        <source>Duplicate</source>
        <extracomment>Tool tip</extracomment>
        <translation>Duplizieren</translation>
    </message>
    <message id="17453">
        <source>Inserts a copy of the selected entries behind them.</source>
        <extracomment>Status bar</extracomment>
        <translation>Fügt eine Kopie der ausgewählten Einträge hinter ihnen ein.</translation>
    </message>
    <message id="17454">
        <source>Duplicate %s</source>
        <extracomment>Name of a step for Undo; %s is a number of entries</extracomment>
        <translation>%s duplizieren</translation>
    </message>
    <message id="17455">
        <source>Move U&amp;p</source>
        <extracomment>Menu item</extracomment>
        <translation>Nach &amp;oben verschieben</translation>
    </message>
    <message id="17456">
        <source>Move Up</source>
        <extracomment>Tool tip</extracomment>
        <translation>Nach oben verschieben</translation>
    </message>
    <message id="17457">
        <source>Moves the selected entries up by one.</source>
        <extracomment>Status bar</extracomment>
        <translation>Verschiebt die ausgewählten Einträge um einen nach oben.</translation>
    </message>
    <message id="17458">
        <source>Move Do&amp;wn</source>
        <extracomment>Menu item</extracomment>
        <translation>Nach u&amp;nten verschieben</translation>
    </message>
    <message id="17459">
        <source>Move Down</source>
        <extracomment>Tool tip</extracomment>
        <translation>Nach unten verschieben</translation>
    </message>
    <message id="17460">
        <source>Moves the selected entries down by one.</source>
        <extracomment>Status bar</extracomment>
        <translation>Verschiebt die ausgewählten Einträge um einen nach unten.</translation>
    </message>
    <message id="17461">
        <source>Open Recen&amp;t</source>
        <extracomment>Menu title</extracomment>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message id="17462">
        <source>%s (not there)</source>
        <extracomment>Menu item; %s is the name of a script</extracomment>
        <translation>%s (nicht vorhanden)</translation>
    </message>
    <message id="17463">
        <source>&amp;Clear List</source>
        <extracomment>Menu item</extracomment>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message id="17464">
        <source>Re&amp;load</source>
        <extracomment>Menu item</extracomment>
        <translation>Neu &amp;laden</translation>
    </message>
    <message id="17465">
        <source>Reload</source>
        <extracomment>Tool tip</extracomment>
        <translation>Neu laden</translation>
    </message>
    <message id="17466">
        <source>Reads the script from its file again.</source>
        <extracomment>Status bar</extracomment>
        <translation>Liest das Skript noch einmal aus seiner Datei.</translation>
    </message>
    <message id="17467">
        <source>Read %s again? The changes that are not saved will be lost.</source>
        <extracomment>Question; %s is the path of the script</extracomment>
        <translation>%s noch einmal lesen? Die nicht gespeicherten Änderungen gehen verloren.</translation>
    </message>
    <message id="17468">
        <source>&amp;Example Scripts</source>
        <extracomment>Menu title</extracomment>
        <translation>&amp;Beispielskripte</translation>
    </message>
    <message id="17469">
        <source>A copy of the example %s; save it under a name of your own</source>
        <extracomment>Status bar; %s is a file name</extracomment>
        <translation>Kopie des Beispiels %s; „Speichern unter“ gibt ihr einen Namen</translation>
    </message>
</context>
</TS>
