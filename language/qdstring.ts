<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="10000">
        <source>&amp;File</source>
        <extracomment>Menu bar: File</extracomment>
        <translation>&amp;File</translation>
        <extra-name>fileMenu</extra-name>
    </message>
    <message id="10001">
        <source>&amp;New</source>
        <extracomment>Menu: File, New</extracomment>
        <translation>&amp;New</translation>
        <extra-name>newMenuText</extra-name>
    </message>
    <message id="10002">
        <source>&amp;Open...</source>
        <extracomment>Menu: File, Open</extracomment>
        <translation>&amp;Open...</translation>
        <extra-name>openMenuText</extra-name>
    </message>
    <message id="10003">
        <source>&amp;Save</source>
        <extracomment>Menu: File, Save</extracomment>
        <translation>&amp;Save</translation>
        <extra-name>saveMenuText</extra-name>
    </message>
    <message id="10004">
        <source>Save &amp;As...</source>
        <extracomment>Menu: File, Save As</extracomment>
        <translation>Save &amp;As...</translation>
        <extra-name>saveAsMenuText</extra-name>
    </message>
    <message id="10010">
        <source>  &amp;VT</source>
        <extracomment>Menu: Mode, VT; two leading blanks as for Mainframe</extracomment>
        <translation>  &amp;VT</translation>
        <extra-name>vtModeMenuText</extra-name>
    </message>
    <message id="10017">
        <source>E&amp;xit</source>
        <extracomment>Menu: File, Exit</extracomment>
        <translation>E&amp;xit</translation>
        <extra-name>exitMenuText</extra-name>
    </message>
    <message id="10018">
        <source>&amp;Edit</source>
        <extracomment>Menu bar: Edit</extracomment>
        <translation>&amp;Edit</translation>
        <extra-name>editMenu</extra-name>
    </message>
    <message id="10070">
        <source>&amp;Help</source>
        <extracomment>Menu bar: Help</extracomment>
        <translation>&amp;Help</translation>
        <extra-name>helpMenu</extra-name>
    </message>
    <message id="10093">
        <source>Options</source>
        <extracomment>Advanced transfer settings: group</extracomment>
        <translation>Options</translation>
        <extra-name>transferAdvancedOptions</extra-name>
    </message>
    <message id="10102">
        <source>&amp;Default</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Default</translation>
        <extra-name>recordFormatDefault</extra-name>
    </message>
    <message id="10152">
        <source>Bro&amp;wse...</source>
        <extracomment>Button: choose a file, in File Operation and the transfer settings</extracomment>
        <translation>Bro&amp;wse...</translation>
        <extra-name>browseButton</extra-name>
    </message>
    <message id="10156">
        <source>Row:</source>
        <extracomment>Set_Cursor dialog: label of the row</extracomment>
        <translation>Row:</translation>
        <extra-name>setCursorRow</extra-name>
    </message>
    <message id="10157">
        <source>Column:</source>
        <extracomment>Set_Cursor dialog: label of the column</extracomment>
        <translation>Column:</translation>
        <extra-name>setCursorColumn</extra-name>
    </message>
    <message id="10167">
        <source>Cancel</source>
        <extracomment>Button: Cancel, in every dialog</extracomment>
        <translation>Cancel</translation>
        <extra-name>cancelButton</extra-name>
    </message>
    <message id="10208">
        <source>Settings</source>
        <extracomment>Transfer settings: tab of the first page</extracomment>
        <translation>Settings</translation>
        <extra-name>transferSettingsTab</extra-name>
    </message>
    <message id="10279">
        <source>Copy to Clipboard</source>
        <extracomment>Caption: Copy dialog</extracomment>
        <translation>Copy to Clipboard</translation>
        <extra-name>copyDialogTitle</extra-name>
    </message>
    <message id="10297">
        <source>File Options</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>File Options</translation>
        <extra-name>transferFileOptions</extra-name>
    </message>
    <message id="10303">
        <source>Paste from Clipboard</source>
        <extracomment>Caption: Paste dialog</extracomment>
        <translation>Paste from Clipboard</translation>
        <extra-name>pasteDialogTitle</extra-name>
    </message>
    <message id="10316">
        <source>&amp;Row:</source>
        <extracomment>Wait_For dialog: label of the start row</extracomment>
        <translation>&amp;Row:</translation>
        <extra-name>waitForRow</extra-name>
    </message>
    <message id="10317">
        <source>C&amp;olumn:</source>
        <extracomment>Wait_For dialog: label of the start column</extracomment>
        <translation>C&amp;olumn:</translation>
        <extra-name>waitForColumn</extra-name>
    </message>
    <message id="10516">
        <source>Paste</source>
        <extracomment>Tooltip: Paste</extracomment>
        <translation>Paste</translation>
        <extra-name>pasteToolTip</extra-name>
    </message>
    <message id="10714">
        <source>Find</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Find</translation>
        <extra-name>luFind</extra-name>
    </message>
    <message id="10811">
        <source>&amp;Binary</source>
        <extracomment>Transfer settings: radio button</extracomment>
        <translation>&amp;Binary</translation>
        <extra-name>transferBinary</extra-name>
    </message>
    <message id="10857">
        <source>Transfer Options</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Transfer Options</translation>
        <extra-name>transferOptions</extra-name>
    </message>
    <message id="10935">
        <source>&amp;Mode</source>
        <extracomment>Menu bar: Mode</extracomment>
        <translation>&amp;Mode</translation>
        <extra-name>modeMenu</extra-name>
    </message>
    <message id="10980">
        <source>Host System</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Host System</translation>
        <extra-name>transferHostSystem</extra-name>
    </message>
    <message id="10982">
        <source>Host File</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>Host File</translation>
        <extra-name>transferHostFile</extra-name>
    </message>
    <message id="10983">
        <source>&amp;File Name:</source>
        <extracomment>Transfer settings: label of the host file name</extracomment>
        <translation>&amp;File Name:</translation>
        <extra-name>transferHostFileName</extra-name>
    </message>
    <message id="10984">
        <source>&amp;Member:</source>
        <extracomment>Transfer settings: label of the member</extracomment>
        <translation>&amp;Member:</translation>
        <extra-name>transferMember</extra-name>
    </message>
    <message id="10985">
        <source>File T&amp;ype:</source>
        <extracomment>Transfer settings: label of the file type</extracomment>
        <translation>File T&amp;ype:</translation>
        <extra-name>transferFileType</extra-name>
    </message>
    <message id="10986">
        <source>File M&amp;ode:</source>
        <extracomment>Transfer settings: label of the file mode</extracomment>
        <translation>File M&amp;ode:</translation>
        <extra-name>transferFileMode</extra-name>
    </message>
    <message id="10987">
        <source>PC File</source>
        <extracomment>Transfer settings: group</extracomment>
        <translation>PC File</translation>
        <extra-name>transferPcFile</extra-name>
    </message>
    <message id="10988">
        <source>File &amp;Name:</source>
        <extracomment>Transfer settings: label of the PC file name</extracomment>
        <translation>File &amp;Name:</translation>
        <extra-name>transferPcFileName</extra-name>
    </message>
    <message id="10989">
        <source>Te&amp;xt</source>
        <extracomment>Transfer settings: radio button</extracomment>
        <translation>Te&amp;xt</translation>
        <extra-name>transferText</extra-name>
    </message>
    <message id="10991">
        <source>App&amp;end</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>App&amp;end</translation>
        <extra-name>transferAppend</extra-name>
    </message>
    <message id="10992">
        <source>Use &amp;Local Translate Tables</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>Use &amp;Local Translate Tables</translation>
        <extra-name>transferLocalTables</extra-name>
    </message>
    <message id="10993">
        <source>&amp;Packet Size:</source>
        <extracomment>Transfer settings: label of the packet size</extracomment>
        <translation>&amp;Packet Size:</translation>
        <extra-name>transferPacketSize</extra-name>
    </message>
    <message id="10994">
        <source>&amp;Auto-&lt;Erase Input&gt; before Transfer</source>
        <extracomment>Transfer settings: check box for TSO and CICS/VS</extracomment>
        <translation>&amp;Auto-&lt;Erase Input&gt; before Transfer</translation>
        <extra-name>transferEraseInput</extra-name>
    </message>
    <message id="10995">
        <source>Advanced</source>
        <extracomment>Transfer settings: tab of the second page</extracomment>
        <translation>Advanced</translation>
        <extra-name>transferAdvancedTab</extra-name>
    </message>
    <message id="10996">
        <source>Record Format</source>
        <extracomment>Advanced transfer settings: group</extracomment>
        <translation>Record Format</translation>
        <extra-name>recordFormat</extra-name>
    </message>
    <message id="10997">
        <source>&amp;Variable</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Variable</translation>
        <extra-name>recordFormatVariable</extra-name>
    </message>
    <message id="10998">
        <source>&amp;Fixed</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Fixed</translation>
        <extra-name>recordFormatFixed</extra-name>
    </message>
    <message id="10999">
        <source>&amp;Undefined</source>
        <extracomment>Advanced transfer settings: radio button, record format</extracomment>
        <translation>&amp;Undefined</translation>
        <extra-name>recordFormatUndefined</extra-name>
    </message>
    <message id="11000">
        <source>Rec&amp;ord Length:</source>
        <extracomment>Advanced transfer settings: label of the record length</extracomment>
        <translation>Rec&amp;ord Length:</translation>
        <extra-name>transferRecordLength</extra-name>
    </message>
    <message id="11001">
        <source>&amp;Block Size:</source>
        <extracomment>Advanced transfer settings: label of the block size</extracomment>
        <translation>&amp;Block Size:</translation>
        <extra-name>transferBlockSize</extra-name>
    </message>
    <message id="11002">
        <source>Space</source>
        <extracomment>Advanced transfer settings: group, disk space on the host</extracomment>
        <translation>Space</translation>
        <extra-name>transferSpace</extra-name>
    </message>
    <message id="11003">
        <source>Allocate &amp;Size:</source>
        <extracomment>Advanced transfer settings: label of the primary space</extracomment>
        <translation>Allocate &amp;Size:</translation>
        <extra-name>transferPrimarySpace</extra-name>
    </message>
    <message id="11004">
        <source>I&amp;ncrement:</source>
        <extracomment>Advanced transfer settings: label of the secondary space</extracomment>
        <translation>I&amp;ncrement:</translation>
        <extra-name>transferSecondarySpace</extra-name>
    </message>
    <message id="11005">
        <source>Unsp&amp;ecified</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>Unsp&amp;ecified</translation>
        <extra-name>spaceUnspecified</extra-name>
    </message>
    <message id="11006">
        <source>Av&amp;g. Blocks:</source>
        <extracomment>Advanced transfer settings: radio button before the average block length</extracomment>
        <translation>Av&amp;g. Blocks:</translation>
        <extra-name>spaceAverageBlocks</extra-name>
    </message>
    <message id="11007">
        <source>C&amp;ylinders</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>C&amp;ylinders</translation>
        <extra-name>spaceCylinders</extra-name>
    </message>
    <message id="11008">
        <source>&amp;Tracks</source>
        <extracomment>Advanced transfer settings: radio button, unit of space</extracomment>
        <translation>&amp;Tracks</translation>
        <extra-name>spaceTracks</extra-name>
    </message>
    <message id="11009">
        <source>&amp;Host File Password:</source>
        <extracomment>Advanced transfer settings: label of the password</extracomment>
        <translation>&amp;Host File Password:</translation>
        <extra-name>transferHostFilePassword</extra-name>
    </message>
    <message id="11010">
        <source>Transfer &amp;Program Name:</source>
        <extracomment>Advanced transfer settings: label of the host program</extracomment>
        <translation>Transfer &amp;Program Name:</translation>
        <extra-name>transferProgramName</extra-name>
    </message>
    <message id="11011">
        <source>Include &amp;Left Parenthesis</source>
        <extracomment>Advanced transfer settings: check box</extracomment>
        <translation>Include &amp;Left Parenthesis</translation>
        <extra-name>transferLeftParenthesis</extra-name>
    </message>
    <message id="11012">
        <source>Include &amp;Right Parenthesis</source>
        <extracomment>Advanced transfer settings: check box</extracomment>
        <translation>Include &amp;Right Parenthesis</translation>
        <extra-name>transferRightParenthesis</extra-name>
    </message>
    <message id="11013">
        <source>Additional Para&amp;meters:</source>
        <extracomment>Advanced transfer settings: label of the additional parameters</extracomment>
        <translation>Additional Para&amp;meters:</translation>
        <extra-name>transferAdditionalParameters</extra-name>
    </message>
    <message id="11190">
        <source>Cu&amp;t<byte value="x9"/>Ctrl+X</source>
        <extracomment>Menu: Edit, Cut; shortcut after the tab</extracomment>
        <translation>Cu&amp;t<byte value="x9"/>Ctrl+X</translation>
        <extra-name>cutMenuText</extra-name>
    </message>
    <message id="11191">
        <source>&amp;Copy<byte value="x9"/>Ctrl+C</source>
        <extracomment>Menu: Edit, Copy; shortcut after the tab</extracomment>
        <translation>&amp;Copy<byte value="x9"/>Ctrl+C</translation>
        <extra-name>copyMenuText</extra-name>
    </message>
    <message id="11192">
        <source>&amp;Paste<byte value="x9"/>Ctrl+V</source>
        <extracomment>Menu: Edit, Paste; shortcut after the tab</extracomment>
        <translation>&amp;Paste<byte value="x9"/>Ctrl+V</translation>
        <extra-name>pasteMenuText</extra-name>
    </message>
    <message id="11193">
        <source>E&amp;ntry</source>
        <extracomment>Menu bar: Entry</extracomment>
        <translation>E&amp;ntry</translation>
        <extra-name>entryMenu</extra-name>
    </message>
    <message id="11194">
        <source>Insert &amp;Script Event...</source>
        <extracomment>Menu: Entry, Insert Script Event</extracomment>
        <translation>Insert &amp;Script Event...</translation>
        <extra-name>insertScriptEventMenuText</extra-name>
    </message>
    <message id="11195">
        <source>Insert &amp;LU Function</source>
        <extracomment>Menu: Entry, Insert LU Function</extracomment>
        <translation>Insert &amp;LU Function</translation>
        <extra-name>insertLuFunctionMenuText</extra-name>
    </message>
    <message id="11196">
        <source>Insert &amp;Menu Command</source>
        <extracomment>Menu: Entry, Insert Menu Command</extracomment>
        <translation>Insert &amp;Menu Command</translation>
        <extra-name>insertMenuCommandMenuText</extra-name>
    </message>
    <message id="11197">
        <source>&amp;Edit/Replace Entry...</source>
        <extracomment>Menu: Entry, Edit/Replace Entry</extracomment>
        <translation>&amp;Edit/Replace Entry...</translation>
        <extra-name>editEntryMenuText</extra-name>
    </message>
    <message id="11198">
        <source>&amp;Delete Entry<byte value="x9"/>Del</source>
        <extracomment>Menu: Entry, Delete Entry; shortcut after the tab</extracomment>
        <translation>&amp;Delete Entry<byte value="x9"/>Del</translation>
        <extra-name>deleteEntriesMenuText</extra-name>
    </message>
    <message id="11199">
        <source>  &amp;Mainframe</source>
        <extracomment>Menu: Mode, Mainframe; the two leading blanks align it with the host types that the program names itself</extracomment>
        <translation>  &amp;Mainframe</translation>
        <extra-name>mainframeModeMenuText</extra-name>
    </message>
    <message id="11200">
        <source>  &amp;iSeries</source>
        <extracomment>Menu: Mode, iSeries; two leading blanks as for Mainframe</extracomment>
        <translation>  &amp;iSeries</translation>
        <extra-name>iSeriesModeMenuText</extra-name>
    </message>
    <message id="11201">
        <source>&amp;Script Editor Help Topics</source>
        <extracomment>Menu: Help, help topics</extracomment>
        <translation>&amp;Script Editor Help Topics</translation>
        <extra-name>helpMenuText</extra-name>
    </message>
    <message id="11202">
        <source>&amp;About Script Editor...</source>
        <extracomment>Menu: Help, About</extracomment>
        <translation>&amp;About Script Editor...</translation>
        <extra-name>aboutMenuText</extra-name>
    </message>
    <message id="11203">
        <source>Script Events</source>
        <extracomment>Label of the Script Events palette</extracomment>
        <translation>Script Events</translation>
        <extra-name>scriptEventsLabel</extra-name>
    </message>
    <message id="11204">
        <source>LU Functions</source>
        <extracomment>Label of the LU Functions palette</extracomment>
        <translation>LU Functions</translation>
        <extra-name>luFunctionsLabel</extra-name>
    </message>
    <message id="11205">
        <source>Menu Commands</source>
        <extracomment>Label of the Menu Commands palette</extracomment>
        <translation>Menu Commands</translation>
        <extra-name>menuCommandsLabel</extra-name>
    </message>
    <message id="11206">
        <source>About Script Editor</source>
        <extracomment>Tooltip: About; caption of the About box</extracomment>
        <translation>About Script Editor</translation>
        <extra-name>aboutToolTip</extra-name>
    </message>
    <message id="11209">
        <source>Encrypt and &amp;Hide</source>
        <extracomment>Text dialog: check box for Type</extracomment>
        <translation>Encrypt and &amp;Hide</translation>
        <extra-name>typeHide</extra-name>
    </message>
    <message id="11212">
        <source>Select the date and time to wait until:</source>
        <extracomment>Wait_Until dialog: label of the date and time</extracomment>
        <translation>Select the date and time to wait until:</translation>
        <extra-name>waitUntilHeading</extra-name>
    </message>
    <message id="11214">
        <source>Select the action to perform:</source>
        <extracomment>Watch_For and Action dialogs: heading above the three lists</extracomment>
        <translation>Select the action to perform:</translation>
        <extra-name>actionHeading</extra-name>
    </message>
    <message id="11215">
        <source>Input</source>
        <extracomment>Input dialog: caption of the message for an empty title</extracomment>
        <translation>Input</translation>
        <extra-name>inputRefusalTitle</extra-name>
    </message>
    <message id="11216">
        <source>Input Window &amp;Title:</source>
        <extracomment>Input dialog: label of the title</extracomment>
        <translation>Input Window &amp;Title:</translation>
        <extra-name>inputTitle</extra-name>
    </message>
    <message id="11217">
        <source>&amp;Prompt:</source>
        <extracomment>Input dialog: label of the prompt</extracomment>
        <translation>&amp;Prompt:</translation>
        <extra-name>inputPrompt</extra-name>
    </message>
    <message id="11218">
        <source>Input a Cha&amp;racter</source>
        <extracomment>Input dialog: radio button</extracomment>
        <translation>Input a Cha&amp;racter</translation>
        <extra-name>inputCharacter</extra-name>
    </message>
    <message id="11219">
        <source>Input a &amp;String of Characters</source>
        <extracomment>Input dialog: radio button</extracomment>
        <translation>Input a &amp;String of Characters</translation>
        <extra-name>inputString</extra-name>
    </message>
    <message id="11220">
        <source>&amp;Maximum String Length:</source>
        <extracomment>Input dialog: label of the length</extracomment>
        <translation>&amp;Maximum String Length:</translation>
        <extra-name>inputLength</extra-name>
    </message>
    <message id="11221">
        <source>&amp;Hide Input as User Types</source>
        <extracomment>Input dialog: check box</extracomment>
        <translation>&amp;Hide Input as User Types</translation>
        <extra-name>inputHide</extra-name>
    </message>
    <message id="11611">
        <source>APL Mode</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>APL Mode</translation>
        <extra-name>luAplMode</extra-name>
    </message>
    <message id="11612">
        <source>Attention</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Attention</translation>
        <extra-name>luAttention</extra-name>
    </message>
    <message id="11613">
        <source>Clear Screen</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Clear Screen</translation>
        <extra-name>luClearScreen</extra-name>
    </message>
    <message id="11614">
        <source>Cursor Select</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Cursor Select</translation>
        <extra-name>luCursorSelect</extra-name>
    </message>
    <message id="11616">
        <source>Erase EOF</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Erase EOF</translation>
        <extra-name>luEraseEof</extra-name>
    </message>
    <message id="11617">
        <source>Erase Input</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Erase Input</translation>
        <extra-name>luEraseInput</extra-name>
    </message>
    <message id="11618">
        <source>Field Mark</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Field Mark</translation>
        <extra-name>luFieldMark</extra-name>
    </message>
    <message id="11619">
        <source>New Line</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>New Line</translation>
        <extra-name>luNewLine</extra-name>
    </message>
    <message id="11620">
        <source>PF1</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF1</translation>
        <extra-name>luPf1</extra-name>
    </message>
    <message id="11621">
        <source>PF2</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF2</translation>
        <extra-name>luPf2</extra-name>
    </message>
    <message id="11622">
        <source>PF3</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF3</translation>
        <extra-name>luPf3</extra-name>
    </message>
    <message id="11623">
        <source>PF4</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF4</translation>
        <extra-name>luPf4</extra-name>
    </message>
    <message id="11624">
        <source>PF5</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF5</translation>
        <extra-name>luPf5</extra-name>
    </message>
    <message id="11625">
        <source>PF6</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF6</translation>
        <extra-name>luPf6</extra-name>
    </message>
    <message id="11626">
        <source>PF7</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF7</translation>
        <extra-name>luPf7</extra-name>
    </message>
    <message id="11627">
        <source>PF8</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF8</translation>
        <extra-name>luPf8</extra-name>
    </message>
    <message id="11628">
        <source>PF9</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF9</translation>
        <extra-name>luPf9</extra-name>
    </message>
    <message id="11629">
        <source>PF10</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF10</translation>
        <extra-name>luPf10</extra-name>
    </message>
    <message id="11630">
        <source>PF11</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF11</translation>
        <extra-name>luPf11</extra-name>
    </message>
    <message id="11631">
        <source>PF12</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF12</translation>
        <extra-name>luPf12</extra-name>
    </message>
    <message id="11632">
        <source>PF13</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF13</translation>
        <extra-name>luPf13</extra-name>
    </message>
    <message id="11633">
        <source>PF14</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF14</translation>
        <extra-name>luPf14</extra-name>
    </message>
    <message id="11634">
        <source>PF15</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF15</translation>
        <extra-name>luPf15</extra-name>
    </message>
    <message id="11635">
        <source>PF16</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF16</translation>
        <extra-name>luPf16</extra-name>
    </message>
    <message id="11636">
        <source>PF17</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF17</translation>
        <extra-name>luPf17</extra-name>
    </message>
    <message id="11637">
        <source>PF18</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF18</translation>
        <extra-name>luPf18</extra-name>
    </message>
    <message id="11638">
        <source>PF19</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF19</translation>
        <extra-name>luPf19</extra-name>
    </message>
    <message id="11639">
        <source>PF20</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF20</translation>
        <extra-name>luPf20</extra-name>
    </message>
    <message id="11640">
        <source>PF21</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF21</translation>
        <extra-name>luPf21</extra-name>
    </message>
    <message id="11641">
        <source>PF22</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF22</translation>
        <extra-name>luPf22</extra-name>
    </message>
    <message id="11642">
        <source>PF23</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF23</translation>
        <extra-name>luPf23</extra-name>
    </message>
    <message id="11643">
        <source>PF24</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>PF24</translation>
        <extra-name>luPf24</extra-name>
    </message>
    <message id="11644">
        <source>Reset</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Reset</translation>
        <extra-name>luReset</extra-name>
    </message>
    <message id="11645">
        <source>System Request</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>System Request</translation>
        <extra-name>luSystemRequest</extra-name>
    </message>
    <message id="11646">
        <source>Help</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Help</translation>
        <extra-name>luISeriesHelp</extra-name>
    </message>
    <message id="11647">
        <source>F1</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F1</translation>
        <extra-name>luISeriesF1</extra-name>
    </message>
    <message id="11648">
        <source>F2</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F2</translation>
        <extra-name>luISeriesF2</extra-name>
    </message>
    <message id="11649">
        <source>F3</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F3</translation>
        <extra-name>luISeriesF3</extra-name>
    </message>
    <message id="11650">
        <source>F4</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F4</translation>
        <extra-name>luISeriesF4</extra-name>
    </message>
    <message id="11651">
        <source>F5</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F5</translation>
        <extra-name>luISeriesF5</extra-name>
    </message>
    <message id="11652">
        <source>F6</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F6</translation>
        <extra-name>luISeriesF6</extra-name>
    </message>
    <message id="11653">
        <source>F7</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F7</translation>
        <extra-name>luISeriesF7</extra-name>
    </message>
    <message id="11654">
        <source>F8</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F8</translation>
        <extra-name>luISeriesF8</extra-name>
    </message>
    <message id="11655">
        <source>F9</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F9</translation>
        <extra-name>luISeriesF9</extra-name>
    </message>
    <message id="11656">
        <source>F10</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F10</translation>
        <extra-name>luISeriesF10</extra-name>
    </message>
    <message id="11657">
        <source>F11</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F11</translation>
        <extra-name>luISeriesF11</extra-name>
    </message>
    <message id="11658">
        <source>F12</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F12</translation>
        <extra-name>luISeriesF12</extra-name>
    </message>
    <message id="11659">
        <source>F13</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F13</translation>
        <extra-name>luISeriesF13</extra-name>
    </message>
    <message id="11660">
        <source>F14</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F14</translation>
        <extra-name>luISeriesF14</extra-name>
    </message>
    <message id="11661">
        <source>F15</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F15</translation>
        <extra-name>luISeriesF15</extra-name>
    </message>
    <message id="11662">
        <source>F16</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F16</translation>
        <extra-name>luISeriesF16</extra-name>
    </message>
    <message id="11663">
        <source>F17</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F17</translation>
        <extra-name>luISeriesF17</extra-name>
    </message>
    <message id="11664">
        <source>F18</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F18</translation>
        <extra-name>luISeriesF18</extra-name>
    </message>
    <message id="11665">
        <source>F19</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F19</translation>
        <extra-name>luISeriesF19</extra-name>
    </message>
    <message id="11666">
        <source>F20</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F20</translation>
        <extra-name>luISeriesF20</extra-name>
    </message>
    <message id="11667">
        <source>F21</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F21</translation>
        <extra-name>luISeriesF21</extra-name>
    </message>
    <message id="11668">
        <source>F22</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F22</translation>
        <extra-name>luISeriesF22</extra-name>
    </message>
    <message id="11669">
        <source>F23</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F23</translation>
        <extra-name>luISeriesF23</extra-name>
    </message>
    <message id="11670">
        <source>F24</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>F24</translation>
        <extra-name>luISeriesF24</extra-name>
    </message>
    <message id="11671">
        <source>Print</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Print</translation>
        <extra-name>luPrint</extra-name>
    </message>
    <message id="11709">
        <source>Open</source>
        <extracomment>Tooltip: Open</extracomment>
        <translation>Open</translation>
        <extra-name>openToolTip</extra-name>
    </message>
    <message id="11710">
        <source>Save As</source>
        <extracomment>Tooltip: Save As</extracomment>
        <translation>Save As</translation>
        <extra-name>saveAsToolTip</extra-name>
    </message>
    <message id="11718">
        <source>Print Screen</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Print Screen</translation>
        <extra-name>luPrintScreen</extra-name>
    </message>
    <message id="11720">
        <source>Exit</source>
        <extracomment>Tooltip: Exit</extracomment>
        <translation>Exit</translation>
        <extra-name>exitToolTip</extra-name>
    </message>
    <message id="11724">
        <source>Paste From File</source>
        <extracomment>File Operation: caption for menu command 219</extracomment>
        <translation>Paste From File</translation>
        <extra-name>pasteFromFileTitle</extra-name>
    </message>
    <message id="11913">
        <source>New Session</source>
        <extracomment>Menu command 201</extracomment>
        <translation>New Session</translation>
        <extra-name>menuCommandNewSession</extra-name>
    </message>
    <message id="11914">
        <source>Open Session</source>
        <extracomment>Menu command 202; takes a session file</extracomment>
        <translation>Open Session</translation>
        <extra-name>menuCommandOpenSession</extra-name>
    </message>
    <message id="11915">
        <source>Save Session</source>
        <extracomment>Menu command 203</extracomment>
        <translation>Save Session</translation>
        <extra-name>menuCommandSaveSession</extra-name>
    </message>
    <message id="11916">
        <source>Save Session As</source>
        <extracomment>Menu command 204; takes a session file</extracomment>
        <translation>Save Session As</translation>
        <extra-name>menuCommandSaveSessionAs</extra-name>
    </message>
    <message id="11917">
        <source>Close Session</source>
        <extracomment>Menu command 205</extracomment>
        <translation>Close Session</translation>
        <extra-name>menuCommandCloseSession</extra-name>
    </message>
    <message id="11918">
        <source>Connect</source>
        <extracomment>Menu command 206</extracomment>
        <translation>Connect</translation>
        <extra-name>menuCommandConnect</extra-name>
    </message>
    <message id="11919">
        <source>Disconnect</source>
        <extracomment>Menu command 207</extracomment>
        <translation>Disconnect</translation>
        <extra-name>menuCommandDisconnect</extra-name>
    </message>
    <message id="11920">
        <source>Page Setup</source>
        <extracomment>Menu command 208</extracomment>
        <translation>Page Setup</translation>
        <extra-name>menuCommandPageSetup</extra-name>
    </message>
    <message id="11921">
        <source>Print Preview</source>
        <extracomment>Menu command 209</extracomment>
        <translation>Print Preview</translation>
        <extra-name>menuCommandPrintPreview</extra-name>
    </message>
    <message id="11922">
        <source>Print Screen</source>
        <extracomment>Menu command 210</extracomment>
        <translation>Print Screen</translation>
        <extra-name>menuCommandPrintScreen</extra-name>
    </message>
    <message id="11923">
        <source>Print Selection</source>
        <extracomment>Menu command 211</extracomment>
        <translation>Print Selection</translation>
        <extra-name>menuCommandPrintSelection</extra-name>
    </message>
    <message id="11924">
        <source>Select Printer</source>
        <extracomment>Menu command 212</extracomment>
        <translation>Select Printer</translation>
        <extra-name>menuCommandSelectPrinter</extra-name>
    </message>
    <message id="11925">
        <source>Associate Printer Session</source>
        <extracomment>Menu command 213; not for VT</extracomment>
        <translation>Associate Printer Session</translation>
        <extra-name>menuCommandAssociatePrinterSession</extra-name>
    </message>
    <message id="11926">
        <source>Exit</source>
        <extracomment>Menu command 214</extracomment>
        <translation>Exit</translation>
        <extra-name>menuCommandExit</extra-name>
    </message>
    <message id="11927">
        <source>Cut</source>
        <extracomment>Menu command 215</extracomment>
        <translation>Cut</translation>
        <extra-name>menuCommandCut</extra-name>
    </message>
    <message id="11928">
        <source>Copy</source>
        <extracomment>Menu command 216</extracomment>
        <translation>Copy</translation>
        <extra-name>menuCommandCopy</extra-name>
    </message>
    <message id="11929">
        <source>Copy Append</source>
        <extracomment>Menu command 217</extracomment>
        <translation>Copy Append</translation>
        <extra-name>menuCommandCopyAppend</extra-name>
    </message>
    <message id="11930">
        <source>Paste</source>
        <extracomment>Menu command 218</extracomment>
        <translation>Paste</translation>
        <extra-name>menuCommandPaste</extra-name>
    </message>
    <message id="11931">
        <source>Paste From File</source>
        <extracomment>Menu command 219; takes a file</extracomment>
        <translation>Paste From File</translation>
        <extra-name>menuCommandPasteFromFile</extra-name>
    </message>
    <message id="11932">
        <source>Paste Continue</source>
        <extracomment>Menu command 220</extracomment>
        <translation>Paste Continue</translation>
        <extra-name>menuCommandPasteContinue</extra-name>
    </message>
    <message id="11933">
        <source>Clear Selection</source>
        <extracomment>Menu command 221</extracomment>
        <translation>Clear Selection</translation>
        <extra-name>menuCommandClearSelection</extra-name>
    </message>
    <message id="11934">
        <source>Select All</source>
        <extracomment>Menu command 222</extracomment>
        <translation>Select All</translation>
        <extra-name>menuCommandSelectAll</extra-name>
    </message>
    <message id="11935">
        <source>Deselect</source>
        <extracomment>Menu command 223</extracomment>
        <translation>Deselect</translation>
        <extra-name>menuCommandDeselect</extra-name>
    </message>
    <message id="11936">
        <source>Find Text</source>
        <extracomment>Menu command 224</extracomment>
        <translation>Find Text</translation>
        <extra-name>menuCommandFindText</extra-name>
    </message>
    <message id="11937">
        <source>Toolbar</source>
        <extracomment>Menu command 225</extracomment>
        <translation>Toolbar</translation>
        <extra-name>menuCommandToolbar</extra-name>
    </message>
    <message id="11938">
        <source>Status Bar</source>
        <extracomment>Menu command 226</extracomment>
        <translation>Status Bar</translation>
        <extra-name>menuCommandStatusBar</extra-name>
    </message>
    <message id="11939">
        <source>Keypad</source>
        <extracomment>Menu command 227</extracomment>
        <translation>Keypad</translation>
        <extra-name>menuCommandKeypad</extra-name>
    </message>
    <message id="11940">
        <source>Full Screen</source>
        <extracomment>Menu command 228</extracomment>
        <translation>Full Screen</translation>
        <extra-name>menuCommandFullScreen</extra-name>
    </message>
    <message id="11941">
        <source>Zoom In</source>
        <extracomment>Menu command 229</extracomment>
        <translation>Zoom In</translation>
        <extra-name>menuCommandZoomIn</extra-name>
    </message>
    <message id="11942">
        <source>Zoom Out</source>
        <extracomment>Menu command 230</extracomment>
        <translation>Zoom Out</translation>
        <extra-name>menuCommandZoomOut</extra-name>
    </message>
    <message id="11943">
        <source>Ruler</source>
        <extracomment>Menu command 231</extracomment>
        <translation>Ruler</translation>
        <extra-name>menuCommandRuler</extra-name>
    </message>
    <message id="11944">
        <source>Hot Spots</source>
        <extracomment>Menu command 232</extracomment>
        <translation>Hot Spots</translation>
        <extra-name>menuCommandHotSpots</extra-name>
    </message>
    <message id="11945">
        <source>Screen History</source>
        <extracomment>Menu command 233</extracomment>
        <translation>Screen History</translation>
        <extra-name>menuCommandScreenHistory</extra-name>
    </message>
    <message id="11946">
        <source>Refresh Screen</source>
        <extracomment>Menu command 234</extracomment>
        <translation>Refresh Screen</translation>
        <extra-name>menuCommandRefreshScreen</extra-name>
    </message>
    <message id="11947">
        <source>Transfer Settings</source>
        <extracomment>Menu command 235</extracomment>
        <translation>Transfer Settings</translation>
        <extra-name>menuCommandTransferSettings</extra-name>
    </message>
    <message id="11948">
        <source>Send File to Host</source>
        <extracomment>Menu command 236; takes transfer settings</extracomment>
        <translation>Send File to Host</translation>
        <extra-name>menuCommandSendFileToHost</extra-name>
    </message>
    <message id="11949">
        <source>Receive File from Host</source>
        <extracomment>Menu command 237; takes transfer settings</extracomment>
        <translation>Receive File from Host</translation>
        <extra-name>menuCommandReceiveFileFromHost</extra-name>
    </message>
    <message id="11952">
        <source>Edit Transfer List</source>
        <extracomment>Menu command 238</extracomment>
        <translation>Edit Transfer List</translation>
        <extra-name>menuCommandEditTransferList</extra-name>
    </message>
    <message id="11953">
        <source>Run Transfer List</source>
        <extracomment>Menu command 239</extracomment>
        <translation>Run Transfer List</translation>
        <extra-name>menuCommandRunTransferList</extra-name>
    </message>
    <message id="11954">
        <source>Stop Transfer</source>
        <extracomment>Menu command 240</extracomment>
        <translation>Stop Transfer</translation>
        <extra-name>menuCommandStopTransfer</extra-name>
    </message>
    <message id="11959">
        <source>Display Settings</source>
        <extracomment>Menu command 242</extracomment>
        <translation>Display Settings</translation>
        <extra-name>menuCommandDisplaySettings</extra-name>
    </message>
    <message id="11960">
        <source>Color Settings</source>
        <extracomment>Menu command 243</extracomment>
        <translation>Color Settings</translation>
        <extra-name>menuCommandColorSettings</extra-name>
    </message>
    <message id="11962">
        <source>Keyboard Map</source>
        <extracomment>Menu command 245</extracomment>
        <translation>Keyboard Map</translation>
        <extra-name>menuCommandKeyboardMap</extra-name>
    </message>
    <message id="11963">
        <source>Mouse Map</source>
        <extracomment>Menu command 246</extracomment>
        <translation>Mouse Map</translation>
        <extra-name>menuCommandMouseMap</extra-name>
    </message>
    <message id="11964">
        <source>Customize Toolbar</source>
        <extracomment>Menu command 247</extracomment>
        <translation>Customize Toolbar</translation>
        <extra-name>menuCommandCustomizeToolbar</extra-name>
    </message>
    <message id="11965">
        <source>Customize Keypad</source>
        <extracomment>Menu command 248</extracomment>
        <translation>Customize Keypad</translation>
        <extra-name>menuCommandCustomizeKeypad</extra-name>
    </message>
    <message id="11966">
        <source>Hot Spot Settings</source>
        <extracomment>Menu command 249</extracomment>
        <translation>Hot Spot Settings</translation>
        <extra-name>menuCommandHotSpotSettings</extra-name>
    </message>
    <message id="11967">
        <source>Printer Settings</source>
        <extracomment>Menu command 250</extracomment>
        <translation>Printer Settings</translation>
        <extra-name>menuCommandPrinterSettings</extra-name>
    </message>
    <message id="11968">
        <source>Security Settings</source>
        <extracomment>Menu command 251</extracomment>
        <translation>Security Settings</translation>
        <extra-name>menuCommandSecuritySettings</extra-name>
    </message>
    <message id="11969">
        <source>Save Settings on Exit</source>
        <extracomment>Menu command 252</extracomment>
        <translation>Save Settings on Exit</translation>
        <extra-name>menuCommandSaveSettingsOnExit</extra-name>
    </message>
    <message id="11970">
        <source>Record Macro</source>
        <extracomment>Menu command 253</extracomment>
        <translation>Record Macro</translation>
        <extra-name>menuCommandRecordMacro</extra-name>
    </message>
    <message id="11971">
        <source>Run Macro</source>
        <extracomment>Menu command 254; takes a macro file</extracomment>
        <translation>Run Macro</translation>
        <extra-name>menuCommandRunMacro</extra-name>
    </message>
    <message id="11972">
        <source>Pause Macro</source>
        <extracomment>Menu command 255</extracomment>
        <translation>Pause Macro</translation>
        <extra-name>menuCommandPauseMacro</extra-name>
    </message>
    <message id="11973">
        <source>Stop Macro</source>
        <extracomment>Menu command 256</extracomment>
        <translation>Stop Macro</translation>
        <extra-name>menuCommandStopMacro</extra-name>
    </message>
    <message id="11974">
        <source>Edit Macro</source>
        <extracomment>Menu command 257; takes a macro file</extracomment>
        <translation>Edit Macro</translation>
        <extra-name>menuCommandEditMacro</extra-name>
    </message>
    <message id="11975">
        <source>Start Trace</source>
        <extracomment>Menu command 258</extracomment>
        <translation>Start Trace</translation>
        <extra-name>menuCommandStartTrace</extra-name>
    </message>
    <message id="11976">
        <source>Stop Trace</source>
        <extracomment>Menu command 259</extracomment>
        <translation>Stop Trace</translation>
        <extra-name>menuCommandStopTrace</extra-name>
    </message>
    <message id="11977">
        <source>Next Window</source>
        <extracomment>Menu command 260</extracomment>
        <translation>Next Window</translation>
        <extra-name>menuCommandNextWindow</extra-name>
    </message>
    <message id="11978">
        <source>Previous Window</source>
        <extracomment>Menu command 261</extracomment>
        <translation>Previous Window</translation>
        <extra-name>menuCommandPreviousWindow</extra-name>
    </message>
    <message id="11979">
        <source>Cascade Windows</source>
        <extracomment>Menu command 262</extracomment>
        <translation>Cascade Windows</translation>
        <extra-name>menuCommandCascadeWindows</extra-name>
    </message>
    <message id="11980">
        <source>Tile Windows</source>
        <extracomment>Menu command 263</extracomment>
        <translation>Tile Windows</translation>
        <extra-name>menuCommandTileWindows</extra-name>
    </message>
    <message id="11981">
        <source>Minimize Window</source>
        <extracomment>Menu command 264</extracomment>
        <translation>Minimize Window</translation>
        <extra-name>menuCommandMinimizeWindow</extra-name>
    </message>
    <message id="11982">
        <source>Help Topics</source>
        <extracomment>Menu command 265</extracomment>
        <translation>Help Topics</translation>
        <extra-name>menuCommandHelpTopics</extra-name>
    </message>
    <message id="11983">
        <source>Keyboard Help</source>
        <extracomment>Menu command 266</extracomment>
        <translation>Keyboard Help</translation>
        <extra-name>menuCommandKeyboardHelp</extra-name>
    </message>
    <message id="11985">
        <source>About Quendra</source>
        <extracomment>Menu command 268</extracomment>
        <translation>About Quendra</translation>
        <extra-name>menuCommandAboutQuendra</extra-name>
    </message>
    <message id="11990">
        <source>File Transfer</source>
        <extracomment>Caption: message about the file transfer settings</extracomment>
        <translation>File Transfer</translation>
        <extra-name>transferRefusalTitle</extra-name>
    </message>
    <message id="11998">
        <source>File Transfer Settings</source>
        <extracomment>Caption: file transfer settings; title of their file dialog</extracomment>
        <translation>File Transfer Settings</translation>
        <extra-name>transferSettingsTitle</extra-name>
    </message>
    <message id="12150">
        <source>Alternate Cursor</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Alternate Cursor</translation>
        <extra-name>luAlternateCursor</extra-name>
    </message>
    <message id="12151">
        <source>Backspace</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Backspace</translation>
        <extra-name>luBackspace</extra-name>
    </message>
    <message id="12152">
        <source>Back Tab</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Back Tab</translation>
        <extra-name>luBackTab</extra-name>
    </message>
    <message id="12153">
        <source>Clear Partition</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Clear Partition</translation>
        <extra-name>luClearPartition</extra-name>
    </message>
    <message id="12154">
        <source>Cursor Down</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor Down</translation>
        <extra-name>luCursorDown</extra-name>
    </message>
    <message id="12155">
        <source>Cursor Left</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor Left</translation>
        <extra-name>luCursorLeft</extra-name>
    </message>
    <message id="12156">
        <source>Cursor Right</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor Right</translation>
        <extra-name>luCursorRight</extra-name>
    </message>
    <message id="12157">
        <source>Cursor Up</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Cursor Up</translation>
        <extra-name>luCursorUp</extra-name>
    </message>
    <message id="12158">
        <source>Cursor Wrap</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Cursor Wrap</translation>
        <extra-name>luCursorWrap</extra-name>
    </message>
    <message id="12159">
        <source>Delete</source>
        <extracomment>LU function of Mainframe, iSeries and VT; verb of the tooltip and question that delete entries, before “1 entry” or “3 entries”</extracomment>
        <translation>Delete</translation>
        <extra-name>luDelete</extra-name>
    </message>
    <message id="12160">
        <source>Enter</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Enter</translation>
        <extra-name>luEnter</extra-name>
    </message>
    <message id="12161">
        <source>Erase Word</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Erase Word</translation>
        <extra-name>luEraseWord</extra-name>
    </message>
    <message id="12162">
        <source>Hexadecimal Mode</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Hexadecimal Mode</translation>
        <extra-name>luHexadecimalMode</extra-name>
    </message>
    <message id="12163">
        <source>Home</source>
        <extracomment>LU function of Mainframe and VT</extracomment>
        <translation>Home</translation>
        <extra-name>luHome</extra-name>
    </message>
    <message id="12164">
        <source>Insert</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>Insert</translation>
        <extra-name>luInsert</extra-name>
    </message>
    <message id="12165">
        <source>Jump Partition</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Jump Partition</translation>
        <extra-name>luJumpPartition</extra-name>
    </message>
    <message id="12166">
        <source>Next Session</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Next Session</translation>
        <extra-name>luNextSession</extra-name>
    </message>
    <message id="12167">
        <source>Numeric Override</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Numeric Override</translation>
        <extra-name>luNumericOverride</extra-name>
    </message>
    <message id="12168">
        <source>Rapid / Word Left</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Rapid / Word Left</translation>
        <extra-name>luRapidWordLeft</extra-name>
    </message>
    <message id="12169">
        <source>Rapid / Word Right</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Rapid / Word Right</translation>
        <extra-name>luRapidWordRight</extra-name>
    </message>
    <message id="12170">
        <source>Scroll Down</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Scroll Down</translation>
        <extra-name>luScrollDown</extra-name>
    </message>
    <message id="12171">
        <source>Scroll Up</source>
        <extracomment>LU function of Mainframe</extracomment>
        <translation>Scroll Up</translation>
        <extra-name>luScrollUp</extra-name>
    </message>
    <message id="12172">
        <source>Word Wrap</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Word Wrap</translation>
        <extra-name>luWordWrap</extra-name>
    </message>
    <message id="12173">
        <source>Back Tab</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Back Tab</translation>
        <extra-name>luISeriesBackTab</extra-name>
    </message>
    <message id="12174">
        <source>Field +</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Field +</translation>
        <extra-name>luFieldPlus</extra-name>
    </message>
    <message id="12175">
        <source>Field -</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Field -</translation>
        <extra-name>luFieldMinus</extra-name>
    </message>
    <message id="12176">
        <source>Field Exit</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Field Exit</translation>
        <extra-name>luFieldExit</extra-name>
    </message>
    <message id="12177">
        <source>Home</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Home</translation>
        <extra-name>luISeriesHome</extra-name>
    </message>
    <message id="12180">
        <source>Roll Down</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Roll Down</translation>
        <extra-name>luRollDown</extra-name>
    </message>
    <message id="12181">
        <source>Roll Up</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Roll Up</translation>
        <extra-name>luRollUp</extra-name>
    </message>
    <message id="12182">
        <source>Tab</source>
        <extracomment>LU function of iSeries</extracomment>
        <translation>Tab</translation>
        <extra-name>luISeriesTab</extra-name>
    </message>
    <message id="12191">
        <source>Page Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Page Down</translation>
        <extra-name>luPageDown</extra-name>
    </message>
    <message id="12192">
        <source>Page Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Page Up</translation>
        <extra-name>luPageUp</extra-name>
    </message>
    <message id="12465">
        <source>The script file “%s” cannot be opened.</source>
        <extracomment>Message: a script file cannot be opened, %s is the path</extracomment>
        <translation>The script file “%s” cannot be opened.</translation>
        <extra-name>scriptCannotBeOpened</extra-name>
    </message>
    <message id="12514">
        <source>The registry key of the Script Editor can be neither created nor opened.</source>
        <extracomment>Message: the registry key of the program can be neither created nor opened</extracomment>
        <translation>The registry key of the Script Editor can be neither created nor opened.</translation>
        <extra-name>registryKeyUnusable</extra-name>
    </message>
    <message id="12519">
        <source>Open Session</source>
        <extracomment>File Operation: caption for menu command 202</extracomment>
        <translation>Open Session</translation>
        <extra-name>openSessionTitle</extra-name>
    </message>
    <message id="12655">
        <source>Copy</source>
        <extracomment>Tooltip: Copy</extracomment>
        <translation>Copy</translation>
        <extra-name>copyToolTip</extra-name>
    </message>
    <message id="12656">
        <source>Select</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Select</translation>
        <extra-name>luSelect</extra-name>
    </message>
    <message id="12715">
        <source>New</source>
        <extracomment>Tooltip: New</extracomment>
        <translation>New</translation>
        <extra-name>newToolTip</extra-name>
    </message>
    <message id="13015">
        <source>The file transfer settings cannot be displayed.</source>
        <extracomment>Message: the file transfer settings cannot be shown</extracomment>
        <translation>The file transfer settings cannot be displayed.</translation>
        <extra-name>transferSettingsCannotBeShown</extra-name>
    </message>
    <message id="13224">
        <source>Confirm Delete</source>
        <extracomment>Caption: question before deleting entries</extracomment>
        <translation>Confirm Delete</translation>
        <extra-name>confirmDeleteTitle</extra-name>
    </message>
    <message id="13326">
        <source>Web Support</source>
        <extracomment>Menu command 267</extracomment>
        <translation>Web Support</translation>
        <extra-name>menuCommandWebSupport</extra-name>
    </message>
    <message id="13442">
        <source>F10</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F10</translation>
        <extra-name>luVtF10</extra-name>
    </message>
    <message id="13443">
        <source>F11</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F11</translation>
        <extra-name>luVtF11</extra-name>
    </message>
    <message id="13444">
        <source>F12</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F12</translation>
        <extra-name>luVtF12</extra-name>
    </message>
    <message id="13445">
        <source>F13</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F13</translation>
        <extra-name>luVtF13</extra-name>
    </message>
    <message id="13446">
        <source>F14</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F14</translation>
        <extra-name>luVtF14</extra-name>
    </message>
    <message id="13447">
        <source>F15</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F15</translation>
        <extra-name>luVtF15</extra-name>
    </message>
    <message id="13448">
        <source>F16</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F16</translation>
        <extra-name>luVtF16</extra-name>
    </message>
    <message id="13449">
        <source>F17</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F17</translation>
        <extra-name>luVtF17</extra-name>
    </message>
    <message id="13450">
        <source>F18</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F18</translation>
        <extra-name>luVtF18</extra-name>
    </message>
    <message id="13451">
        <source>F19</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F19</translation>
        <extra-name>luVtF19</extra-name>
    </message>
    <message id="13452">
        <source>F20</source>
        <extracomment>LU function of VT</extracomment>
        <translation>F20</translation>
        <extra-name>luVtF20</extra-name>
    </message>
    <message id="13453">
        <source>Escape</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Escape</translation>
        <extra-name>luEscape</extra-name>
    </message>
    <message id="13454">
        <source>Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor Up</translation>
        <extra-name>luVtCursorUp</extra-name>
    </message>
    <message id="13455">
        <source>Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor Down</translation>
        <extra-name>luVtCursorDown</extra-name>
    </message>
    <message id="13456">
        <source>Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor Right</translation>
        <extra-name>luVtCursorRight</extra-name>
    </message>
    <message id="13457">
        <source>Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Cursor Left</translation>
        <extra-name>luVtCursorLeft</extra-name>
    </message>
    <message id="13458">
        <source>PF1</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF1</translation>
        <extra-name>luVtPf1</extra-name>
    </message>
    <message id="13459">
        <source>PF2</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF2</translation>
        <extra-name>luVtPf2</extra-name>
    </message>
    <message id="13460">
        <source>PF3</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF3</translation>
        <extra-name>luVtPf3</extra-name>
    </message>
    <message id="13461">
        <source>PF4</source>
        <extracomment>LU function of VT</extracomment>
        <translation>PF4</translation>
        <extra-name>luVtPf4</extra-name>
    </message>
    <message id="13462">
        <source>Keypad 0</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 0</translation>
        <extra-name>luKeypad0</extra-name>
    </message>
    <message id="13463">
        <source>Keypad 1</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 1</translation>
        <extra-name>luKeypad1</extra-name>
    </message>
    <message id="13464">
        <source>Keypad 2</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 2</translation>
        <extra-name>luKeypad2</extra-name>
    </message>
    <message id="13465">
        <source>Keypad 3</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 3</translation>
        <extra-name>luKeypad3</extra-name>
    </message>
    <message id="13466">
        <source>Keypad 4</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 4</translation>
        <extra-name>luKeypad4</extra-name>
    </message>
    <message id="13467">
        <source>Keypad 5</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 5</translation>
        <extra-name>luKeypad5</extra-name>
    </message>
    <message id="13468">
        <source>Keypad 6</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 6</translation>
        <extra-name>luKeypad6</extra-name>
    </message>
    <message id="13469">
        <source>Keypad 7</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 7</translation>
        <extra-name>luKeypad7</extra-name>
    </message>
    <message id="13470">
        <source>Keypad 8</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 8</translation>
        <extra-name>luKeypad8</extra-name>
    </message>
    <message id="13471">
        <source>Keypad 9</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad 9</translation>
        <extra-name>luKeypad9</extra-name>
    </message>
    <message id="13472">
        <source>Keypad Minus</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad Minus</translation>
        <extra-name>luKeypadMinus</extra-name>
    </message>
    <message id="13473">
        <source>Keypad Comma</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad Comma</translation>
        <extra-name>luKeypadComma</extra-name>
    </message>
    <message id="13474">
        <source>Keypad Period</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad Period</translation>
        <extra-name>luKeypadPeriod</extra-name>
    </message>
    <message id="13475">
        <source>Keypad Enter</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Keypad Enter</translation>
        <extra-name>luKeypadEnter</extra-name>
    </message>
    <message id="13476">
        <source>Hold Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Hold Screen</translation>
        <extra-name>luHoldScreen</extra-name>
    </message>
    <message id="13477">
        <source>Print Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Print Screen</translation>
        <extra-name>luVtPrintScreen</extra-name>
    </message>
    <message id="13478">
        <source>Set-Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Set-Up</translation>
        <extra-name>luSetUp</extra-name>
    </message>
    <message id="13479">
        <source>Data/Talk</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Data/Talk</translation>
        <extra-name>luDataTalk</extra-name>
    </message>
    <message id="13480">
        <source>Break</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Break</translation>
        <extra-name>luBreak</extra-name>
    </message>
    <message id="13481">
        <source>Long Break</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Long Break</translation>
        <extra-name>luLongBreak</extra-name>
    </message>
    <message id="13482">
        <source>Answerback</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Answerback</translation>
        <extra-name>luAnswerback</extra-name>
    </message>
    <message id="13483">
        <source>Compose Character</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Compose Character</translation>
        <extra-name>luComposeCharacter</extra-name>
    </message>
    <message id="13484">
        <source>Return</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Return</translation>
        <extra-name>luReturn</extra-name>
    </message>
    <message id="13485">
        <source>Line Feed</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Line Feed</translation>
        <extra-name>luLineFeed</extra-name>
    </message>
    <message id="13486">
        <source>Remove</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Remove</translation>
        <extra-name>luRemove</extra-name>
    </message>
    <message id="13487">
        <source>Previous Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Previous Screen</translation>
        <extra-name>luPreviousScreen</extra-name>
    </message>
    <message id="13488">
        <source>Next Screen</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Next Screen</translation>
        <extra-name>luNextScreen</extra-name>
    </message>
    <message id="13489">
        <source>User-Defined Key F6</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F6</translation>
        <extra-name>luUserDefinedKeyF6</extra-name>
    </message>
    <message id="13490">
        <source>User-Defined Key F7</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F7</translation>
        <extra-name>luUserDefinedKeyF7</extra-name>
    </message>
    <message id="13491">
        <source>User-Defined Key F8</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F8</translation>
        <extra-name>luUserDefinedKeyF8</extra-name>
    </message>
    <message id="13492">
        <source>User-Defined Key F9</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F9</translation>
        <extra-name>luUserDefinedKeyF9</extra-name>
    </message>
    <message id="13493">
        <source>User-Defined Key F10</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F10</translation>
        <extra-name>luUserDefinedKeyF10</extra-name>
    </message>
    <message id="13494">
        <source>User-Defined Key F11</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F11</translation>
        <extra-name>luUserDefinedKeyF11</extra-name>
    </message>
    <message id="13495">
        <source>User-Defined Key F12</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F12</translation>
        <extra-name>luUserDefinedKeyF12</extra-name>
    </message>
    <message id="13496">
        <source>User-Defined Key F13</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F13</translation>
        <extra-name>luUserDefinedKeyF13</extra-name>
    </message>
    <message id="13497">
        <source>User-Defined Key F14</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F14</translation>
        <extra-name>luUserDefinedKeyF14</extra-name>
    </message>
    <message id="13498">
        <source>User-Defined Key F15</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F15</translation>
        <extra-name>luUserDefinedKeyF15</extra-name>
    </message>
    <message id="13499">
        <source>User-Defined Key F16</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F16</translation>
        <extra-name>luUserDefinedKeyF16</extra-name>
    </message>
    <message id="13500">
        <source>User-Defined Key F17</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F17</translation>
        <extra-name>luUserDefinedKeyF17</extra-name>
    </message>
    <message id="13501">
        <source>User-Defined Key F18</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F18</translation>
        <extra-name>luUserDefinedKeyF18</extra-name>
    </message>
    <message id="13502">
        <source>User-Defined Key F19</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F19</translation>
        <extra-name>luUserDefinedKeyF19</extra-name>
    </message>
    <message id="13503">
        <source>User-Defined Key F20</source>
        <extracomment>LU function of VT</extracomment>
        <translation>User-Defined Key F20</translation>
        <extra-name>luUserDefinedKeyF20</extra-name>
    </message>
    <message id="13504">
        <source>Help</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Help</translation>
        <extra-name>luVtHelp</extra-name>
    </message>
    <message id="13505">
        <source>Do</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Do</translation>
        <extra-name>luDo</extra-name>
    </message>
    <message id="13506">
        <source>Clear Display</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Clear Display</translation>
        <extra-name>luClearDisplay</extra-name>
    </message>
    <message id="13507">
        <source>Clear Communications</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Clear Communications</translation>
        <extra-name>luClearCommunications</extra-name>
    </message>
    <message id="13508">
        <source>Reset Terminal</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Reset Terminal</translation>
        <extra-name>luResetTerminal</extra-name>
    </message>
    <message id="13509">
        <source>Local Mode</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Local Mode</translation>
        <extra-name>luLocalMode</extra-name>
    </message>
    <message id="13510">
        <source>End</source>
        <extracomment>LU function of Mainframe, iSeries and VT</extracomment>
        <translation>End</translation>
        <extra-name>luEnd</extra-name>
    </message>
    <message id="13511">
        <source>Tab</source>
        <extracomment>LU function of Mainframe and VT</extracomment>
        <translation>Tab</translation>
        <extra-name>luTab</extra-name>
    </message>
    <message id="13512">
        <source>Ctrl+@</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+@</translation>
        <extra-name>luCtrlAt</extra-name>
    </message>
    <message id="13513">
        <source>Ctrl+A</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+A</translation>
        <extra-name>luCtrlA</extra-name>
    </message>
    <message id="13514">
        <source>Ctrl+B</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+B</translation>
        <extra-name>luCtrlB</extra-name>
    </message>
    <message id="13515">
        <source>Ctrl+C</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+C</translation>
        <extra-name>luCtrlC</extra-name>
    </message>
    <message id="13516">
        <source>Ctrl+D</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+D</translation>
        <extra-name>luCtrlD</extra-name>
    </message>
    <message id="13517">
        <source>Ctrl+E</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+E</translation>
        <extra-name>luCtrlE</extra-name>
    </message>
    <message id="13518">
        <source>Ctrl+F</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+F</translation>
        <extra-name>luCtrlF</extra-name>
    </message>
    <message id="13519">
        <source>Ctrl+G</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+G</translation>
        <extra-name>luCtrlG</extra-name>
    </message>
    <message id="13520">
        <source>Ctrl+H</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+H</translation>
        <extra-name>luCtrlH</extra-name>
    </message>
    <message id="13521">
        <source>Ctrl+I</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+I</translation>
        <extra-name>luCtrlI</extra-name>
    </message>
    <message id="13522">
        <source>Ctrl+J</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+J</translation>
        <extra-name>luCtrlJ</extra-name>
    </message>
    <message id="13523">
        <source>Ctrl+K</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+K</translation>
        <extra-name>luCtrlK</extra-name>
    </message>
    <message id="13524">
        <source>Ctrl+L</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+L</translation>
        <extra-name>luCtrlL</extra-name>
    </message>
    <message id="13525">
        <source>Ctrl+M</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+M</translation>
        <extra-name>luCtrlM</extra-name>
    </message>
    <message id="13526">
        <source>Ctrl+N</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+N</translation>
        <extra-name>luCtrlN</extra-name>
    </message>
    <message id="13527">
        <source>Ctrl+O</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+O</translation>
        <extra-name>luCtrlO</extra-name>
    </message>
    <message id="13528">
        <source>Ctrl+P</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+P</translation>
        <extra-name>luCtrlP</extra-name>
    </message>
    <message id="13529">
        <source>Ctrl+Q</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Q</translation>
        <extra-name>luCtrlQ</extra-name>
    </message>
    <message id="13530">
        <source>Ctrl+R</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+R</translation>
        <extra-name>luCtrlR</extra-name>
    </message>
    <message id="13531">
        <source>Ctrl+S</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+S</translation>
        <extra-name>luCtrlS</extra-name>
    </message>
    <message id="13532">
        <source>Ctrl+T</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+T</translation>
        <extra-name>luCtrlT</extra-name>
    </message>
    <message id="13533">
        <source>Ctrl+U</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+U</translation>
        <extra-name>luCtrlU</extra-name>
    </message>
    <message id="13534">
        <source>Ctrl+V</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+V</translation>
        <extra-name>luCtrlV</extra-name>
    </message>
    <message id="13535">
        <source>Ctrl+W</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+W</translation>
        <extra-name>luCtrlW</extra-name>
    </message>
    <message id="13536">
        <source>Ctrl+X</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+X</translation>
        <extra-name>luCtrlX</extra-name>
    </message>
    <message id="13537">
        <source>Ctrl+Y</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Y</translation>
        <extra-name>luCtrlY</extra-name>
    </message>
    <message id="13538">
        <source>Ctrl+Z</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Z</translation>
        <extra-name>luCtrlZ</extra-name>
    </message>
    <message id="13539">
        <source>Ctrl+[</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+[</translation>
        <extra-name>luCtrlOpenBracket</extra-name>
    </message>
    <message id="13540">
        <source>Ctrl+\</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+\</translation>
        <extra-name>luCtrlBackslash</extra-name>
    </message>
    <message id="13541">
        <source>Ctrl+]</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+]</translation>
        <extra-name>luCtrlCloseBracket</extra-name>
    </message>
    <message id="13542">
        <source>Ctrl+^</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+^</translation>
        <extra-name>luCtrlCaret</extra-name>
    </message>
    <message id="13543">
        <source>Ctrl+_</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+_</translation>
        <extra-name>luCtrlUnderscore</extra-name>
    </message>
    <message id="13544">
        <source>Scroll Line Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Scroll Line Up</translation>
        <extra-name>luScrollLineUp</extra-name>
    </message>
    <message id="13545">
        <source>Scroll Line Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Scroll Line Down</translation>
        <extra-name>luScrollLineDown</extra-name>
    </message>
    <message id="13546">
        <source>Scroll Page Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Scroll Page Up</translation>
        <extra-name>luScrollPageUp</extra-name>
    </message>
    <message id="13547">
        <source>Scroll Page Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Scroll Page Down</translation>
        <extra-name>luScrollPageDown</extra-name>
    </message>
    <message id="13548">
        <source>Pan Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Pan Left</translation>
        <extra-name>luPanLeft</extra-name>
    </message>
    <message id="13549">
        <source>Pan Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Pan Right</translation>
        <extra-name>luPanRight</extra-name>
    </message>
    <message id="13550">
        <source>Auto Print</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Auto Print</translation>
        <extra-name>luAutoPrint</extra-name>
    </message>
    <message id="13551">
        <source>Printer Form Feed</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Printer Form Feed</translation>
        <extra-name>luPrinterFormFeed</extra-name>
    </message>
    <message id="13552">
        <source>Print Scrollback</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Print Scrollback</translation>
        <extra-name>luPrintScrollback</extra-name>
    </message>
    <message id="13553">
        <source>Switch Session</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Switch Session</translation>
        <extra-name>luSwitchSession</extra-name>
    </message>
    <message id="13619">
        <source>Save</source>
        <extracomment>Tooltip: Save</extracomment>
        <translation>Save</translation>
        <extra-name>saveToolTip</extra-name>
    </message>
    <message id="13673">
        <source>Cut</source>
        <extracomment>Tooltip: Cut</extracomment>
        <translation>Cut</translation>
        <extra-name>cutToolTip</extra-name>
    </message>
    <message id="13674">
        <source>Insert Script Event</source>
        <extracomment>Tooltip: Insert Script Event, no palette row selected</extracomment>
        <translation>Insert Script Event</translation>
        <extra-name>insertScriptEventToolTip</extra-name>
    </message>
    <message id="13675">
        <source>Insert LU Function</source>
        <extracomment>Tooltip: Insert LU Function, no palette row selected</extracomment>
        <translation>Insert LU Function</translation>
        <extra-name>insertLuFunctionToolTip</extra-name>
    </message>
    <message id="13676">
        <source>Insert Menu Command</source>
        <extracomment>Tooltip: Insert Menu Command, no palette row selected</extracomment>
        <translation>Insert Menu Command</translation>
        <extra-name>insertMenuCommandToolTip</extra-name>
    </message>
    <message id="13677">
        <source>Edit/Replace Entry</source>
        <extracomment>Tooltip: Edit/Replace Entry, no entry focused</extracomment>
        <translation>Edit/Replace Entry</translation>
        <extra-name>editEntryToolTip</extra-name>
    </message>
    <message id="13678">
        <source>Mainframe Mode</source>
        <extracomment>Tooltip: mode Mainframe</extracomment>
        <translation>Mainframe Mode</translation>
        <extra-name>mainframeModeToolTip</extra-name>
    </message>
    <message id="13679">
        <source>iSeries Mode</source>
        <extracomment>Tooltip: mode iSeries</extracomment>
        <translation>iSeries Mode</translation>
        <extra-name>iSeriesModeToolTip</extra-name>
    </message>
    <message id="13680">
        <source>VT Mode</source>
        <extracomment>Tooltip: mode VT</extracomment>
        <translation>VT Mode</translation>
        <extra-name>vtModeToolTip</extra-name>
    </message>
    <message id="13681">
        <source>Script Editor Help Topics</source>
        <extracomment>Tooltip: Help</extracomment>
        <translation>Script Editor Help Topics</translation>
        <extra-name>helpToolTip</extra-name>
    </message>
    <message id="13682">
        <source>Creates a new script.</source>
        <extracomment>Status bar: New</extracomment>
        <translation>Creates a new script.</translation>
        <extra-name>newStatusText</extra-name>
    </message>
    <message id="13683">
        <source>Opens an existing script.</source>
        <extracomment>Status bar: Open</extracomment>
        <translation>Opens an existing script.</translation>
        <extra-name>openStatusText</extra-name>
    </message>
    <message id="13684">
        <source>Saves the script.</source>
        <extracomment>Status bar: Save</extracomment>
        <translation>Saves the script.</translation>
        <extra-name>saveStatusText</extra-name>
    </message>
    <message id="13685">
        <source>Saves the script under a new name.</source>
        <extracomment>Status bar: Save As</extracomment>
        <translation>Saves the script under a new name.</translation>
        <extra-name>saveAsStatusText</extra-name>
    </message>
    <message id="13686">
        <source>Closes the Script Editor.</source>
        <extracomment>Status bar: Exit</extracomment>
        <translation>Closes the Script Editor.</translation>
        <extra-name>exitStatusText</extra-name>
    </message>
    <message id="13687">
        <source>Removes the selected entries and keeps them for pasting.</source>
        <extracomment>Status bar: Cut</extracomment>
        <translation>Removes the selected entries and keeps them for pasting.</translation>
        <extra-name>cutStatusText</extra-name>
    </message>
    <message id="13688">
        <source>Copies the selected entries for pasting.</source>
        <extracomment>Status bar: Copy</extracomment>
        <translation>Copies the selected entries for pasting.</translation>
        <extra-name>copyStatusText</extra-name>
    </message>
    <message id="13689">
        <source>Inserts the cut or copied entries after the current entry.</source>
        <extracomment>Status bar: Paste</extracomment>
        <translation>Inserts the cut or copied entries after the current entry.</translation>
        <extra-name>pasteStatusText</extra-name>
    </message>
    <message id="13690">
        <source>Inserts the selected script event into the script.</source>
        <extracomment>Status bar: Insert Script Event</extracomment>
        <translation>Inserts the selected script event into the script.</translation>
        <extra-name>insertScriptEventStatusText</extra-name>
    </message>
    <message id="13691">
        <source>Inserts the selected LU function into the script.</source>
        <extracomment>Status bar: Insert LU Function</extracomment>
        <translation>Inserts the selected LU function into the script.</translation>
        <extra-name>insertLuFunctionStatusText</extra-name>
    </message>
    <message id="13692">
        <source>Inserts the selected menu command into the script.</source>
        <extracomment>Status bar: Insert Menu Command</extracomment>
        <translation>Inserts the selected menu command into the script.</translation>
        <extra-name>insertMenuCommandStatusText</extra-name>
    </message>
    <message id="13693">
        <source>Edits the current entry, or replaces it with the one selected in the palette.</source>
        <extracomment>Status bar: Edit/Replace Entry</extracomment>
        <translation>Edits the current entry, or replaces it with the one selected in the palette.</translation>
        <extra-name>editEntryStatusText</extra-name>
    </message>
    <message id="13694">
        <source>Deletes the selected entries.</source>
        <extracomment>Status bar: Delete Entry</extracomment>
        <translation>Deletes the selected entries.</translation>
        <extra-name>deleteEntriesStatusText</extra-name>
    </message>
    <message id="13695">
        <source>Switches the script to Mainframe display sessions.</source>
        <extracomment>Status bar: mode Mainframe</extracomment>
        <translation>Switches the script to Mainframe display sessions.</translation>
        <extra-name>mainframeModeStatusText</extra-name>
    </message>
    <message id="13696">
        <source>Switches the script to iSeries display sessions.</source>
        <extracomment>Status bar: mode iSeries</extracomment>
        <translation>Switches the script to iSeries display sessions.</translation>
        <extra-name>iSeriesModeStatusText</extra-name>
    </message>
    <message id="13697">
        <source>Switches the script to VT sessions.</source>
        <extracomment>Status bar: mode VT</extracomment>
        <translation>Switches the script to VT sessions.</translation>
        <extra-name>vtModeStatusText</extra-name>
    </message>
    <message id="13698">
        <source>Opens the help topics of the Script Editor.</source>
        <extracomment>Status bar: Help</extracomment>
        <translation>Opens the help topics of the Script Editor.</translation>
        <extra-name>helpStatusText</extra-name>
    </message>
    <message id="13699">
        <source>Shows the version and product information.</source>
        <extracomment>Status bar: About</extracomment>
        <translation>Shows the version and product information.</translation>
        <extra-name>aboutStatusText</extra-name>
    </message>
    <message id="13700">
        <source>Quendra Script Editor</source>
        <extracomment>Caption: registry message at start-up</extracomment>
        <translation>Quendra Script Editor</translation>
        <extra-name>registryKeyUnusableTitle</extra-name>
    </message>
    <message id="13701">
        <source>Insert Script Event %s</source>
        <extracomment>Tooltip: insert the selected script event, %s is its name</extracomment>
        <translation>Insert Script Event %s</translation>
        <extra-name>insertNamedScriptEvent</extra-name>
    </message>
    <message id="13702">
        <source>Insert LU Function %s</source>
        <extracomment>Tooltip: insert the selected LU function, %s is its name</extracomment>
        <translation>Insert LU Function %s</translation>
        <extra-name>insertNamedLuFunction</extra-name>
    </message>
    <message id="13703">
        <source>Insert Menu Command %s</source>
        <extracomment>Tooltip: insert the selected menu command, %s is its name</extracomment>
        <translation>Insert Menu Command %s</translation>
        <extra-name>insertNamedMenuCommand</extra-name>
    </message>
    <message id="13704">
        <source>Replace %s</source>
        <extracomment>Tooltip: replace the focused entry, %s is its line in the script list</extracomment>
        <translation>Replace %s</translation>
        <extra-name>replaceNamedEntry</extra-name>
    </message>
    <message id="13705">
        <source>Edit %s</source>
        <extracomment>Tooltip: edit the focused entry, %s is its line in the script list</extracomment>
        <translation>Edit %s</translation>
        <extra-name>editNamedEntry</extra-name>
    </message>
    <message id="13707">
        <source>No entries</source>
        <extracomment>Entry count of an empty script</extracomment>
        <translation>No entries</translation>
        <extra-name>noEntriesCount</extra-name>
    </message>
    <message id="13708">
        <source>1 entry</source>
        <extracomment>Entry count: one; also the object of Delete</extracomment>
        <translation>1 entry</translation>
        <extra-name>oneEntryCount</extra-name>
    </message>
    <message id="13709">
        <source>%d entries</source>
        <extracomment>Entry count, %d is the number; also the object of Delete</extracomment>
        <translation>%d entries</translation>
        <extra-name>entriesCount</extra-name>
    </message>
    <message id="13710">
        <source>Do you want to save the changes to “%s”?</source>
        <extracomment>Question: save a named script, %s is the path</extracomment>
        <translation>Do you want to save the changes to “%s”?</translation>
        <extra-name>saveNamedScriptQuestion</extra-name>
    </message>
    <message id="13711">
        <source>Do you want to save the changes to the untitled script?</source>
        <extracomment>Question: save an untitled script</extracomment>
        <translation>Do you want to save the changes to the untitled script?</translation>
        <extra-name>saveUntitledScriptQuestion</extra-name>
    </message>
    <message id="13712">
        <source>Save Changes</source>
        <extracomment>Caption: save question before New and Open</extracomment>
        <translation>Save Changes</translation>
        <extra-name>saveChangesTitle</extra-name>
    </message>
    <message id="13713">
        <source>Open Script</source>
        <extracomment>Caption: Open dialog</extracomment>
        <translation>Open Script</translation>
        <extra-name>openScriptDialogTitle</extra-name>
    </message>
    <message id="13714">
        <source>Save Script As</source>
        <extracomment>Caption: Save As dialog</extracomment>
        <translation>Save Script As</translation>
        <extra-name>saveScriptDialogTitle</extra-name>
    </message>
    <message id="13717">
        <source>Exit Script Editor</source>
        <extracomment>Caption: save question when closing</extracomment>
        <translation>Exit Script Editor</translation>
        <extra-name>exitTitle</extra-name>
    </message>
    <message id="13718">
        <source>Dup</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>Dup</translation>
        <extra-name>luDup</extra-name>
    </message>
    <message id="13719">
        <source>PA1</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA1</translation>
        <extra-name>luPa1</extra-name>
    </message>
    <message id="13720">
        <source>PA2</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA2</translation>
        <extra-name>luPa2</extra-name>
    </message>
    <message id="13721">
        <source>PA3</source>
        <extracomment>LU function of Mainframe and iSeries</extracomment>
        <translation>PA3</translation>
        <extra-name>luPa3</extra-name>
    </message>
    <message id="13722">
        <source>Session Settings</source>
        <extracomment>Menu command 241</extracomment>
        <translation>Session Settings</translation>
        <extra-name>menuCommandSessionSettings</extra-name>
    </message>
    <message id="13723">
        <source>Font Settings</source>
        <extracomment>Menu command 244</extracomment>
        <translation>Font Settings</translation>
        <extra-name>menuCommandFontSettings</extra-name>
    </message>
    <message id="13724">
        <source>Open Script</source>
        <extracomment>Caption: errors when opening a script file</extracomment>
        <translation>Open Script</translation>
        <extra-name>openScriptErrorTitle</extra-name>
    </message>
    <message id="13727">
        <source>“%s” is not a script file that this version of the Script Editor can read.</source>
        <extracomment>Message: unknown signature or version, %s is the path</extracomment>
        <translation>“%s” is not a script file that this version of the Script Editor can read.</translation>
        <extra-name>scriptOfUnknownVersion</extra-name>
    </message>
    <message id="13728">
        <source>The script file “%s” cannot be read, or it is too short to be a script file.</source>
        <extracomment>Message: the signature of a script file cannot be read, %s is the path</extracomment>
        <translation>The script file “%s” cannot be read, or it is too short to be a script file.</translation>
        <extra-name>scriptCannotBeRead</extra-name>
    </message>
    <message id="13729">
        <source>The script file “%s” cannot be created.</source>
        <extracomment>Message: a script file cannot be created, %s is the path</extracomment>
        <translation>The script file “%s” cannot be created.</translation>
        <extra-name>scriptCannotBeCreated</extra-name>
    </message>
    <message id="13730">
        <source>Save Script</source>
        <extracomment>Caption: errors when saving a script file</extracomment>
        <translation>Save Script</translation>
        <extra-name>saveScriptErrorTitle</extra-name>
    </message>
    <message id="13731">
        <source>The script file “%s” cannot be written.</source>
        <extracomment>Message: a script file cannot be written, %s is the path</extracomment>
        <translation>The script file “%s” cannot be written.</translation>
        <extra-name>scriptCannotBeWritten</extra-name>
    </message>
    <message id="13732">
        <source>This menu command is not compatible with the mode of the script.</source>
        <extracomment>Message: a menu command that scripts of this host type cannot hold</extracomment>
        <translation>This menu command is not compatible with the mode of the script.</translation>
        <extra-name>refusedMenuCommand</extra-name>
    </message>
    <message id="13733">
        <source>Script Edit Info</source>
        <extracomment>Caption: refused menu command</extracomment>
        <translation>Script Edit Info</translation>
        <extra-name>refusedMenuCommandTitle</extra-name>
    </message>
    <message id="13734">
        <source>Run Program</source>
        <extracomment>File Operation: caption for Run</extracomment>
        <translation>Run Program</translation>
        <extra-name>runTitle</extra-name>
    </message>
    <message id="13735">
        <source>&amp;Enter the program to run:</source>
        <extracomment>File Operation: label for Run</extracomment>
        <translation>&amp;Enter the program to run:</translation>
        <extra-name>runLabel</extra-name>
    </message>
    <message id="13736">
        <source>&amp;Enter the session file to open:</source>
        <extracomment>File Operation: label for menu command 202</extracomment>
        <translation>&amp;Enter the session file to open:</translation>
        <extra-name>openSessionLabel</extra-name>
    </message>
    <message id="13737">
        <source>Save Session As</source>
        <extracomment>File Operation: caption for menu command 204</extracomment>
        <translation>Save Session As</translation>
        <extra-name>saveSessionAsTitle</extra-name>
    </message>
    <message id="13738">
        <source>&amp;Enter the session file to save to:</source>
        <extracomment>File Operation: label for menu command 204</extracomment>
        <translation>&amp;Enter the session file to save to:</translation>
        <extra-name>saveSessionAsLabel</extra-name>
    </message>
    <message id="13739">
        <source>&amp;Enter the file to paste from:</source>
        <extracomment>File Operation: label for menu command 219</extracomment>
        <translation>&amp;Enter the file to paste from:</translation>
        <extra-name>pasteFromFileLabel</extra-name>
    </message>
    <message id="13740">
        <source>Run Macro</source>
        <extracomment>File Operation: caption for menu command 254</extracomment>
        <translation>Run Macro</translation>
        <extra-name>runMacroTitle</extra-name>
    </message>
    <message id="13741">
        <source>&amp;Enter the macro to run:</source>
        <extracomment>File Operation: label for menu command 254</extracomment>
        <translation>&amp;Enter the macro to run:</translation>
        <extra-name>runMacroLabel</extra-name>
    </message>
    <message id="13742">
        <source>Edit Macro</source>
        <extracomment>File Operation: caption for menu command 257</extracomment>
        <translation>Edit Macro</translation>
        <extra-name>editMacroTitle</extra-name>
    </message>
    <message id="13743">
        <source>&amp;Enter the macro to edit:</source>
        <extracomment>File Operation: label for menu command 257</extracomment>
        <translation>&amp;Enter the macro to edit:</translation>
        <extra-name>editMacroLabel</extra-name>
    </message>
    <message id="13744">
        <source>A value is required in this field.</source>
        <extracomment>Message: a required field is empty</extracomment>
        <translation>A value is required in this field.</translation>
        <extra-name>valueRequired</extra-name>
    </message>
    <message id="13745">
        <source>File Operation</source>
        <extracomment>File Operation: caption of the message for an empty file name</extracomment>
        <translation>File Operation</translation>
        <extra-name>fileNameMissingTitle</extra-name>
    </message>
    <message id="13746">
        <source>&amp;Enter the comment:</source>
        <extracomment>Text dialog: label for Comment</extracomment>
        <translation>&amp;Enter the comment:</translation>
        <extra-name>commentLabel</extra-name>
    </message>
    <message id="13747">
        <source>&amp;Enter the name of the label to go to:</source>
        <extracomment>Text dialog: label for Goto</extracomment>
        <translation>&amp;Enter the name of the label to go to:</translation>
        <extra-name>gotoLabel</extra-name>
    </message>
    <message id="13748">
        <source>&amp;Enter the name of the label:</source>
        <extracomment>Text dialog: label for Label</extracomment>
        <translation>&amp;Enter the name of the label:</translation>
        <extra-name>labelLabel</extra-name>
    </message>
    <message id="13749">
        <source>&amp;Enter the message to display:</source>
        <extracomment>Text dialog: label for Message</extracomment>
        <translation>&amp;Enter the message to display:</translation>
        <extra-name>messageLabel</extra-name>
    </message>
    <message id="13750">
        <source>&amp;Enter the text to type:</source>
        <extracomment>Text dialog: label for Type</extracomment>
        <translation>&amp;Enter the text to type:</translation>
        <extra-name>typeLabel</extra-name>
    </message>
    <message id="13751">
        <source>&amp;Enter the text or &lt;Lu Function&gt; to wait for:</source>
        <extracomment>Wait_For dialog: label of the string; &lt;Lu Function&gt; stays as it is</extracomment>
        <translation>&amp;Enter the text or &lt;Lu Function&gt; to wait for:</translation>
        <extra-name>waitForText</extra-name>
    </message>
    <message id="13752">
        <source>&amp;Enter the text or &lt;Lu Function&gt; to watch for:</source>
        <extracomment>Watch_For dialog: label of the string; &lt;Lu Function&gt; stays as it is</extracomment>
        <translation>&amp;Enter the text or &lt;Lu Function&gt; to watch for:</translation>
        <extra-name>watchForText</extra-name>
    </message>
    <message id="13753">
        <source>&amp;Enter time to Wait(seconds):</source>
        <extracomment>Wait dialog: label for Wait</extracomment>
        <translation>&amp;Enter time to Wait(seconds):</translation>
        <extra-name>waitSeconds</extra-name>
    </message>
    <message id="13754">
        <source>&amp;Enter the number of Keyboard Restores to wait for:</source>
        <extracomment>Wait dialog: label for Wait_Ready</extracomment>
        <translation>&amp;Enter the number of Keyboard Restores to wait for:</translation>
        <extra-name>waitReadyRestores</extra-name>
    </message>
    <message id="13757">
        <source>Watch_For</source>
        <extracomment>Caption: messages of the Watch_For dialog; the command keyword</extracomment>
        <translation>Watch_For</translation>
        <extra-name>watchForRefusalTitle</extra-name>
    </message>
    <message id="13758">
        <source>Select an action to perform when the watched text appears.</source>
        <extracomment>Watch_For dialog: message when no action is selected</extracomment>
        <translation>Select an action to perform when the watched text appears.</translation>
        <extra-name>watchForNeedsAction</extra-name>
    </message>
    <message id="13759">
        <source>If_Input_Is and Watch_For events are not valid for this operation.</source>
        <extracomment>Watch_For dialog: message for an action that it cannot hold; the keywords stay as they are</extracomment>
        <translation>If_Input_Is and Watch_For events are not valid for this operation.</translation>
        <extra-name>watchForActionRefused</extra-name>
    </message>
    <message id="13807">
        <source>Find Text</source>
        <extracomment>Wait_For dialog: group of the search options</extracomment>
        <translation>Find Text</translation>
        <extra-name>waitForFindText</extra-name>
    </message>
    <message id="14201">
        <source>UTS Mode</source>
        <extracomment>Tooltip: mode UTS</extracomment>
        <translation>UTS Mode</translation>
        <extra-name>utsModeToolTip</extra-name>
    </message>
    <message id="14202">
        <source>T27 Mode</source>
        <extracomment>Tooltip: mode T27</extracomment>
        <translation>T27 Mode</translation>
        <extra-name>t27ModeToolTip</extra-name>
    </message>
    <message id="14203">
        <source>ICL Mode</source>
        <extracomment>Tooltip: mode ICL</extracomment>
        <translation>ICL Mode</translation>
        <extra-name>iclModeToolTip</extra-name>
    </message>
    <message id="14204">
        <source>Switches the script to UTS display sessions.</source>
        <extracomment>Status bar: mode UTS</extracomment>
        <translation>Switches the script to UTS display sessions.</translation>
        <extra-name>utsModeStatusText</extra-name>
    </message>
    <message id="14205">
        <source>Switches the script to T27 display sessions.</source>
        <extracomment>Status bar: mode T27</extracomment>
        <translation>Switches the script to T27 display sessions.</translation>
        <extra-name>t27ModeStatusText</extra-name>
    </message>
    <message id="14206">
        <source>Switches the script to ICL display sessions.</source>
        <extracomment>Status bar: mode ICL</extracomment>
        <translation>Switches the script to ICL display sessions.</translation>
        <extra-name>iclModeStatusText</extra-name>
    </message>
    <message id="14300">
        <source>Action</source>
        <extracomment>Wait_For and If_Input_Is dialogs: group of the actions</extracomment>
        <translation>Action</translation>
        <extra-name>actionGroup</extra-name>
    </message>
    <message id="14414">
        <source>Start Position:</source>
        <extracomment>Wait_For dialog: label of the start position</extracomment>
        <translation>Start Position:</translation>
        <extra-name>waitForStartPosition</extra-name>
    </message>
    <message id="14415">
        <source>E&amp;xact Position</source>
        <extracomment>Wait_For dialog: check box</extracomment>
        <translation>E&amp;xact Position</translation>
        <extra-name>waitForExactPosition</extra-name>
    </message>
    <message id="14416">
        <source>Ca&amp;se-sensitive Search</source>
        <extracomment>Wait_For dialog: check box</extracomment>
        <translation>Ca&amp;se-sensitive Search</translation>
        <extra-name>waitForCaseSensitive</extra-name>
    </message>
    <message id="14417">
        <source>Timeout</source>
        <extracomment>Wait_For dialog: group of the timeout</extracomment>
        <translation>Timeout</translation>
        <extra-name>waitForTimeoutGroup</extra-name>
    </message>
    <message id="14418">
        <source>No &amp;Timeout</source>
        <extracomment>Wait_For dialog: radio button</extracomment>
        <translation>No &amp;Timeout</translation>
        <extra-name>waitForNoTimeout</extra-name>
    </message>
    <message id="14419">
        <source>Ti&amp;meout in Seconds:</source>
        <extracomment>Wait_For dialog: radio button before the number of seconds</extracomment>
        <translation>Ti&amp;meout in Seconds:</translation>
        <extra-name>waitForTimeout</extra-name>
    </message>
    <message id="14420">
        <source>&amp;Found...</source>
        <extracomment>Wait_For dialog: button for the found action</extracomment>
        <translation>&amp;Found...</translation>
        <extra-name>foundButton</extra-name>
    </message>
    <message id="14421">
        <source>If Found Then </source>
        <extracomment>Wait_For dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Found Then </translation>
        <extra-name>foundLine</extra-name>
    </message>
    <message id="14422">
        <source>&amp;Not Found...</source>
        <extracomment>Wait_For dialog: button for the not-found action</extracomment>
        <translation>&amp;Not Found...</translation>
        <extra-name>notFoundButton</extra-name>
    </message>
    <message id="14423">
        <source>If Not Found Then </source>
        <extracomment>Wait_For dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Not Found Then </translation>
        <extra-name>notFoundLine</extra-name>
    </message>
    <message id="14424">
        <source>OK</source>
        <extracomment>Button: OK, in Wait_For, If_Input_Is and Action</extracomment>
        <translation>OK</translation>
        <extra-name>okButton</extra-name>
    </message>
    <message id="14545">
        <source>Shift+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Shift+Cursor Up</translation>
        <extra-name>luShiftCursorUp</extra-name>
    </message>
    <message id="14546">
        <source>Shift+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Shift+Cursor Down</translation>
        <extra-name>luShiftCursorDown</extra-name>
    </message>
    <message id="14547">
        <source>Shift+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Shift+Cursor Right</translation>
        <extra-name>luShiftCursorRight</extra-name>
    </message>
    <message id="14548">
        <source>Shift+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Shift+Cursor Left</translation>
        <extra-name>luShiftCursorLeft</extra-name>
    </message>
    <message id="14549">
        <source>Ctrl+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Cursor Up</translation>
        <extra-name>luCtrlCursorUp</extra-name>
    </message>
    <message id="14550">
        <source>Ctrl+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Cursor Down</translation>
        <extra-name>luCtrlCursorDown</extra-name>
    </message>
    <message id="14551">
        <source>Ctrl+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Cursor Right</translation>
        <extra-name>luCtrlCursorRight</extra-name>
    </message>
    <message id="14552">
        <source>Ctrl+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Ctrl+Cursor Left</translation>
        <extra-name>luCtrlCursorLeft</extra-name>
    </message>
    <message id="14553">
        <source>Alt+Cursor Up</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor Up</translation>
        <extra-name>luAltCursorUp</extra-name>
    </message>
    <message id="14554">
        <source>Alt+Cursor Down</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor Down</translation>
        <extra-name>luAltCursorDown</extra-name>
    </message>
    <message id="14555">
        <source>Alt+Cursor Right</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor Right</translation>
        <extra-name>luAltCursorRight</extra-name>
    </message>
    <message id="14556">
        <source>Alt+Cursor Left</source>
        <extracomment>LU function of VT</extracomment>
        <translation>Alt+Cursor Left</translation>
        <extra-name>luAltCursorLeft</extra-name>
    </message>
    <message id="14557">
        <source>Enter the position to move the cursor to:</source>
        <extracomment>Set_Cursor dialog: heading</extracomment>
        <translation>Enter the position to move the cursor to:</translation>
        <extra-name>setCursorHeading</extra-name>
    </message>
    <message id="14592">
        <source>S&amp;how Settings before Starting a Transfer</source>
        <extracomment>Transfer settings: check box</extracomment>
        <translation>S&amp;how Settings before Starting a Transfer</translation>
        <extra-name>transferShowSettings</extra-name>
    </message>
    <message id="14833">
        <source>&amp;Enter the application ID for Express Logon:</source>
        <extracomment>Text dialog: label for Express_Logon</extracomment>
        <translation>&amp;Enter the application ID for Express Logon:</translation>
        <extra-name>expressLogonLabel</extra-name>
    </message>
    <message id="14834">
        <source>Enter the screen area to copy to the clipboard:</source>
        <extracomment>Copy dialog: heading</extracomment>
        <translation>Enter the screen area to copy to the clipboard:</translation>
        <extra-name>copyDialogHeading</extra-name>
    </message>
    <message id="14835">
        <source>&amp;Start Row, Column:</source>
        <extracomment>Copy dialog: label of the start row and column</extracomment>
        <translation>&amp;Start Row, Column:</translation>
        <extra-name>copyDialogStart</extra-name>
    </message>
    <message id="14836">
        <source>&amp;End Row, Column:</source>
        <extracomment>Copy dialog: label of the end row and column</extracomment>
        <translation>&amp;End Row, Column:</translation>
        <extra-name>copyDialogEnd</extra-name>
    </message>
    <message id="14837">
        <source>Co&amp;py Entire Screen</source>
        <extracomment>Copy dialog: check box</extracomment>
        <translation>Co&amp;py Entire Screen</translation>
        <extra-name>copyDialogEntireScreen</extra-name>
    </message>
    <message id="14838">
        <source>Enter the screen position to paste the clipboard to:</source>
        <extracomment>Paste dialog: heading</extracomment>
        <translation>Enter the screen position to paste the clipboard to:</translation>
        <extra-name>pasteDialogHeading</extra-name>
    </message>
    <message id="14839">
        <source>&amp;Paste Row, Column:</source>
        <extracomment>Paste dialog: label of the row and column</extracomment>
        <translation>&amp;Paste Row, Column:</translation>
        <extra-name>pasteDialogPosition</extra-name>
    </message>
    <message id="14840">
        <source>Pa&amp;ste to Cursor</source>
        <extracomment>Paste dialog: check box</extracomment>
        <translation>Pa&amp;ste to Cursor</translation>
        <extra-name>pasteDialogAtCursor</extra-name>
    </message>
    <message id="14934">
        <source>&amp;Auto-&lt;Clear Screen&gt; before Transfer</source>
        <extracomment>Transfer settings: check box for VM/CMS</extracomment>
        <translation>&amp;Auto-&lt;Clear Screen&gt; before Transfer</translation>
        <extra-name>transferClearScreen</extra-name>
    </message>
    <message id="15242">
        <source>St&amp;ore Input As:</source>
        <extracomment>Input dialog: label of the variable</extracomment>
        <translation>St&amp;ore Input As:</translation>
        <extra-name>inputStoreAs</extra-name>
    </message>
    <message id="15243">
        <source>&amp;Select or enter the two values to compare:</source>
        <extracomment>If_Input_Is dialog: label of the two operands</extracomment>
        <translation>&amp;Select or enter the two values to compare:</translation>
        <extra-name>ifInputIsOperands</extra-name>
    </message>
    <message id="15244">
        <source>&amp;Equal...</source>
        <extracomment>If_Input_Is dialog: button for the equal action</extracomment>
        <translation>&amp;Equal...</translation>
        <extra-name>equalButton</extra-name>
    </message>
    <message id="15245">
        <source>If Equal Then </source>
        <extracomment>If_Input_Is dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Equal Then </translation>
        <extra-name>equalLine</extra-name>
    </message>
    <message id="15246">
        <source>&amp;Not Equal...</source>
        <extracomment>If_Input_Is dialog: button for the not-equal action</extracomment>
        <translation>&amp;Not Equal...</translation>
        <extra-name>notEqualButton</extra-name>
    </message>
    <message id="15247">
        <source>If Not Equal Then </source>
        <extracomment>If_Input_Is dialog: action line before an action is chosen; script wording as in the script list, the same in every language</extracomment>
        <translation>If Not Equal Then </translation>
        <extra-name>notEqualLine</extra-name>
    </message>
    <message id="15301">
        <source>&amp;Undo</source>
        <extracomment>Menu: Edit, Undo, with nothing to undo</extracomment>
        <translation>&amp;Undo</translation>
        <extra-name>undoMenuText</extra-name>
    </message>
    <message id="15302">
        <source>&amp;Undo %s</source>
        <extracomment>Menu: Edit, Undo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>&amp;Undo %s</translation>
        <extra-name>undoStepMenuText</extra-name>
    </message>
    <message id="15303">
        <source>&amp;Redo</source>
        <extracomment>Menu: Edit, Redo, with nothing to redo</extracomment>
        <translation>&amp;Redo</translation>
        <extra-name>redoMenuText</extra-name>
    </message>
    <message id="15304">
        <source>&amp;Redo %s</source>
        <extracomment>Menu: Edit, Redo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>&amp;Redo %s</translation>
        <extra-name>redoStepMenuText</extra-name>
    </message>
    <message id="15305">
        <source>Undo</source>
        <extracomment>Tooltip: Undo, with nothing to undo</extracomment>
        <translation>Undo</translation>
        <extra-name>undoToolTip</extra-name>
    </message>
    <message id="15306">
        <source>Undo %s</source>
        <extracomment>Tooltip: Undo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>Undo %s</translation>
        <extra-name>undoStepToolTip</extra-name>
    </message>
    <message id="15307">
        <source>Redo</source>
        <extracomment>Tooltip: Redo, with nothing to redo</extracomment>
        <translation>Redo</translation>
        <extra-name>redoToolTip</extra-name>
    </message>
    <message id="15308">
        <source>Redo %s</source>
        <extracomment>Tooltip: Redo; %s is the step, as “Delete 3 Entries”</extracomment>
        <translation>Redo %s</translation>
        <extra-name>redoStepToolTip</extra-name>
    </message>
    <message id="15309">
        <source>Takes back the last change of the script.</source>
        <extracomment>Status bar: Undo</extracomment>
        <translation>Takes back the last change of the script.</translation>
        <extra-name>undoStatusText</extra-name>
    </message>
    <message id="15310">
        <source>Makes the change again that was undone last.</source>
        <extracomment>Status bar: Redo</extracomment>
        <translation>Makes the change again that was undone last.</translation>
        <extra-name>redoStatusText</extra-name>
    </message>
    <message id="15311">
        <source>Edit Entry</source>
        <extracomment>Step that Undo and Redo name: an entry was edited or replaced</extracomment>
        <translation>Edit Entry</translation>
        <extra-name>editStep</extra-name>
    </message>
    <message id="15312">
        <source>Delete %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>Delete %s</translation>
        <extra-name>deleteStep</extra-name>
    </message>
    <message id="15313">
        <source>Cut %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>Cut %s</translation>
        <extra-name>cutStep</extra-name>
    </message>
    <message id="15314">
        <source>Paste %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>Paste %s</translation>
        <extra-name>pasteStep</extra-name>
    </message>
    <message id="15315">
        <source>Move %s</source>
        <extracomment>Step that Undo and Redo name; %s is “1 Entry” or “3 Entries”</extracomment>
        <translation>Move %s</translation>
        <extra-name>moveStep</extra-name>
    </message>
    <message id="15316">
        <source>To replace this entry, first select what takes its place in the palette %s.</source>
        <extracomment>Status bar: Edit/Replace Entry needs a selected row; %s is the label of the palette</extracomment>
        <translation>To replace this entry, first select what takes its place in the palette %s.</translation>
        <extra-name>replacementNeedsSelection</extra-name>
    </message>
    <message id="15317">
        <source>The hidden text of this entry is too long: it can have at most 246 characters.</source>
        <extracomment>Message: hidden text too long; the entry follows</extracomment>
        <translation>The hidden text of this entry is too long: it can have at most 246 characters.</translation>
        <extra-name>hiddenTextOfEntryTooLong</extra-name>
    </message>
    <message id="15318">
        <source>The hidden text of this entry cannot be enciphered: there is no usable key.</source>
        <extracomment>Message: hidden text that cannot be enciphered; the entry follows</extracomment>
        <translation>The hidden text of this entry cannot be enciphered: there is no usable key.</translation>
        <extra-name>hiddenTextNeedsKey</extra-name>
    </message>
    <message id="15319">
        <source>Copy as Te&amp;xt</source>
        <extracomment>Menu: Edit, Copy as Text</extracomment>
        <translation>Copy as Te&amp;xt</translation>
        <extra-name>copyAsTextMenuText</extra-name>
    </message>
    <message id="15320">
        <source>Copy as Text</source>
        <extracomment>Tooltip: Copy as Text</extracomment>
        <translation>Copy as Text</translation>
        <extra-name>copyAsTextToolTip</extra-name>
    </message>
    <message id="15321">
        <source>Copies the lines of the selected entries for other programs; hidden texts stay hidden.</source>
        <extracomment>Status bar: Copy as Text</extracomment>
        <translation>Copies the lines of the selected entries for other programs; hidden texts stay hidden.</translation>
        <extra-name>copyAsTextStatusText</extra-name>
    </message>
    <message id="15322">
        <source>Insert Sc&amp;ript...</source>
        <extracomment>Menu: Entry, Insert Script</extracomment>
        <translation>Insert Sc&amp;ript...</translation>
        <extra-name>insertScriptMenuText</extra-name>
    </message>
    <message id="15323">
        <source>Insert Script</source>
        <extracomment>Tooltip: Insert Script; also the title of its file dialog, and its name as a step that Undo and Redo name</extracomment>
        <translation>Insert Script</translation>
        <extra-name>insertScriptToolTip</extra-name>
    </message>
    <message id="15324">
        <source>Inserts all entries of another script file; that file stays as it is.</source>
        <extracomment>Status bar: Insert Script</extracomment>
        <translation>Inserts all entries of another script file; that file stays as it is.</translation>
        <extra-name>insertScriptStatusText</extra-name>
    </message>
    <message id="15325">
        <source>%d of %d entries inserted: the script is full</source>
        <extracomment>Status bar after Insert Script and Paste: number of inserted entries, number of those that there were</extracomment>
        <translation>%d of %d entries inserted: the script is full</translation>
        <extra-name>scriptInsertedUntilFull</extra-name>
    </message>
    <message id="15326">
        <source>&amp;Find...</source>
        <extracomment>Menu: Edit, Find</extracomment>
        <translation>&amp;Find...</translation>
        <extra-name>findMenuText</extra-name>
    </message>
    <message id="15327">
        <source>Find</source>
        <extracomment>Tooltip: Find; also the empty search field</extracomment>
        <translation>Find</translation>
        <extra-name>findToolTip</extra-name>
    </message>
    <message id="15328">
        <source>Finds entries by their texts.</source>
        <extracomment>Status bar: Find</extracomment>
        <translation>Finds entries by their texts.</translation>
        <extra-name>findStatusText</extra-name>
    </message>
    <message id="15329">
        <source>Previous match</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Previous match</translation>
        <extra-name>findPrevious</extra-name>
    </message>
    <message id="15330">
        <source>Next match</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Next match</translation>
        <extra-name>findNext</extra-name>
    </message>
    <message id="15331">
        <source>%d of %d</source>
        <extracomment>Find bar: number of the current match, number of matches</extracomment>
        <translation>%d of %d</translation>
        <extra-name>findPosition</extra-name>
    </message>
    <message id="15332">
        <source>Not found</source>
        <extracomment>Find bar: there is no match</extracomment>
        <translation>Not found</translation>
        <extra-name>findNothing</extra-name>
    </message>
    <message id="15333">
        <source>%d found</source>
        <extracomment>Find bar: number of matches, none of them current</extracomment>
        <translation>%d found</translation>
        <extra-name>findCount</extra-name>
    </message>
    <message id="15334">
        <source>Close</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Close</translation>
        <extra-name>findClose</extra-name>
    </message>
    <message id="15335">
        <source>The inserted script was written for %s: check its LU functions</source>
        <extracomment>Status bar after Insert Script; %s is the mode of the inserted script, as “VT”</extracomment>
        <translation>The inserted script was written for %s: check its LU functions</translation>
        <extra-name>insertedScriptOfOtherMode</extra-name>
    </message>
    <message id="15340">
        <source>Help on Se&amp;lection</source>
        <extracomment>Menu: Help, Help on Selection</extracomment>
        <translation>Help on Se&amp;lection</translation>
        <extra-name>helpOnSelectionMenuText</extra-name>
    </message>
    <message id="15341">
        <source>Help on Selection</source>
        <extracomment>Tool tip of Help on Selection</extracomment>
        <translation>Help on Selection</translation>
        <extra-name>helpOnSelectionToolTip</extra-name>
    </message>
    <message id="15342">
        <source>Opens the manual at the selected command, entry or host type</source>
        <extracomment>Status bar: Help on Selection</extracomment>
        <translation>Opens the manual at the selected command, entry or host type</translation>
        <extra-name>helpOnSelectionStatusText</extra-name>
    </message>
    <message id="15343">
        <source>%s - Quendra Script Editor Help</source>
        <extracomment>Help window: title, with that of the page</extracomment>
        <translation>%s - Quendra Script Editor Help</translation>
        <extra-name>helpWindowTitle</extra-name>
    </message>
    <message id="15344">
        <source>Back</source>
        <extracomment>Help window: button to the page before</extracomment>
        <translation>Back</translation>
        <extra-name>helpBack</extra-name>
    </message>
    <message id="15345">
        <source>Forward</source>
        <extracomment>Help window: button to the page that Back left</extracomment>
        <translation>Forward</translation>
        <extra-name>helpForward</extra-name>
    </message>
    <message id="15346">
        <source>Start page</source>
        <extracomment>Help window: button to the first page</extracomment>
        <translation>Start page</translation>
        <extra-name>helpStartPage</extra-name>
    </message>
    <message id="15347">
        <source>Contents</source>
        <extracomment>Help window: name of the tree of pages</extracomment>
        <translation>Contents</translation>
        <extra-name>helpContents</extra-name>
    </message>
    <message id="15348">
        <source>Search the manual</source>
        <extracomment>Help window: in the empty field for words to search for</extracomment>
        <translation>Search the manual</translation>
        <extra-name>helpSearch</extra-name>
    </message>
    <message id="15349">
        <source>Search results</source>
        <extracomment>Help window: name of the list of found pages</extracomment>
        <translation>Search results</translation>
        <extra-name>helpResults</extra-name>
    </message>
    <message id="15350">
        <source>Found on %d pages</source>
        <extracomment>Help window: above the list of found pages</extracomment>
        <translation>Found on %d pages</translation>
        <extra-name>helpFoundPages</extra-name>
    </message>
    <message id="15351">
        <source>Found on 1 page</source>
        <extracomment>Help window: above the list of found pages</extracomment>
        <translation>Found on 1 page</translation>
        <extra-name>helpFoundOnePage</extra-name>
    </message>
    <message id="15352">
        <source>Not found</source>
        <extracomment>Help window: above the empty list of found pages</extracomment>
        <translation>Not found</translation>
        <extra-name>helpFoundNothing</extra-name>
    </message>
    <message id="15353">
        <source>Page not found</source>
        <extracomment>Help window: heading in place of a page</extracomment>
        <translation>Page not found</translation>
        <extra-name>helpPageMissingTitle</extra-name>
    </message>
    <message id="15354">
        <source>The manual has no page “%s”.</source>
        <extracomment>Help window: in place of a page that is missing</extracomment>
        <translation>The manual has no page “%s”.</translation>
        <extra-name>helpPageMissing</extra-name>
    </message>
    <message id="15355">
        <source>The manual is not installed: there are no pages in %s.</source>
        <extracomment>Help window: in place of a page when there is no manual at all; the folder</extracomment>
        <translation>The manual is not installed: there are no pages in %s.</translation>
        <extra-name>helpManualMissing</extra-name>
    </message>
    <message id="15356">
        <source>Page</source>
        <extracomment>Help window: name of the part with the page</extracomment>
        <translation>Page</translation>
        <extra-name>helpPage</extra-name>
    </message>
    <message id="15357">
        <source>Larger text</source>
        <extracomment>Help window: button for larger text</extracomment>
        <translation>Larger text</translation>
        <extra-name>helpLargerText</extra-name>
    </message>
    <message id="15358">
        <source>Smaller text</source>
        <extracomment>Help window: button for smaller text</extracomment>
        <translation>Smaller text</translation>
        <extra-name>helpSmallerText</extra-name>
    </message>
    <message id="15380">
        <source>The file “%s” has been changed by another program since it was loaded.

Replace it? The changed file is kept as a backup beside it.</source>
        <extracomment>Question when saving; %s is the path of the script</extracomment>
        <translation>The file “%s” has been changed by another program since it was loaded.

Replace it? The changed file is kept as a backup beside it.</translation>
        <extra-name>replaceChangedFileQuestion</extra-name>
    </message>
    <message id="15381">
        <source>A VT script file cannot store these entries as they are:

%s
Save, and lose what the file cannot store?</source>
        <extracomment>Question when saving as VT; %s is the numbered lines of the entries, each with its line end</extracomment>
        <translation>A VT script file cannot store these entries as they are:

%s
Save, and lose what the file cannot store?</translation>
        <extra-name>lossInVtQuestion</extra-name>
    </message>
    <message id="15382">
        <source>%s loaded: the file ends inside an entry (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: the file ends inside an entry; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: the file ends inside an entry (byte %d)</translation>
        <extra-name>fileEndsInsideEntry</extra-name>
    </message>
    <message id="15383">
        <source>The old file is kept as %s</source>
        <extracomment>Status bar after saving; %s is a file name</extracomment>
        <translation>The old file is kept as %s</translation>
        <extra-name>oldFileKept</extra-name>
    </message>
    <message id="15384">
        <source>More commands</source>
        <extracomment>For screen readers: the button with the commands that a narrow window has no room for</extracomment>
        <translation>More commands</translation>
        <extra-name>moreCommands</extra-name>
    </message>
    <message id="15385">
        <source>Script</source>
        <extracomment>For screen readers: the list with the entries of the script</extracomment>
        <translation>Script</translation>
        <extra-name>scriptListName</extra-name>
    </message>
    <message id="15386">
        <source>converted from an older version, which is kept as %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is a file name</extracomment>
        <translation>converted from an older version, which is kept as %s</translation>
        <extra-name>convertedKeeping</extra-name>
    </message>
    <message id="15387">
        <source>the file keeps its older version until it is saved: %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is the system's reason</extracomment>
        <translation>the file keeps its older version until it is saved: %s</translation>
        <extra-name>conversionFailed</extra-name>
    </message>
    <message id="15389">
        <source>changes that were not saved are kept as %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is a file name</extracomment>
        <translation>changes that were not saved are kept as %s</translation>
        <extra-name>unsavedChangesKept</extra-name>
    </message>
    <message id="15390">
        <source>1 Entry</source>
        <extracomment>One entry in a step that Undo and Redo name: “Delete 1 Entry”</extracomment>
        <translation>1 Entry</translation>
        <extra-name>oneEntryInStep</extra-name>
    </message>
    <message id="15391">
        <source>%d Entries</source>
        <extracomment>Several entries in a step that Undo and Redo name: “Delete 3 Entries”</extracomment>
        <translation>%d Entries</translation>
        <extra-name>entriesInStep</extra-name>
    </message>
    <message id="15392">
        <source>%s %s</source>
        <extracomment>Tooltip of Delete Entry and, with “?” behind it, the question before deleting: “Delete”, then “3 entries”</extracomment>
        <translation>%s %s</translation>
        <extra-name>deleteVerbAndObject</extra-name>
    </message>
    <message id="15393">
        <source>Actions need a timeout: first select “Timeout in Seconds”.</source>
        <extracomment>Wait_For dialog: note in the timeout group, and tooltip of the action buttons, while they are off</extracomment>
        <translation>Actions need a timeout: first select “Timeout in Seconds”.</translation>
        <extra-name>actionsNeedTimeout</extra-name>
    </message>
    <message id="15394">
        <source>%s loaded: unknown command code (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: a record is of an unknown command; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: unknown command code (byte %d)</translation>
        <extra-name>fileHasUnknownCommand</extra-name>
    </message>
    <message id="15395">
        <source>%s loaded: an Input prompt is longer than 1023 characters (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: an Input prompt is longer than its field; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: an Input prompt is longer than 1023 characters (byte %d)</translation>
        <extra-name>fileHasTooLongPrompt</extra-name>
    </message>
    <message id="15396">
        <source>%s loaded: actions are nested too deep (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: actions inside of actions; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: actions are nested too deep (byte %d)</translation>
        <extra-name>fileHasTooDeepActions</extra-name>
    </message>
    <message id="15397">
        <source>%s loaded: the file has more than 4096 entries (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: more entries than a script may have; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: the file has more than 4096 entries (byte %d)</translation>
        <extra-name>fileHasTooManyEntries</extra-name>
    </message>
    <message id="15398">
        <source>%s loaded: the file is longer than any script (byte %d)</source>
        <extracomment>Status bar: a file was not read whole: more bytes than the largest script; %s is the number of entries, as “12 entries”, %d the place in the file</extracomment>
        <translation>%s loaded: the file is longer than any script (byte %d)</translation>
        <extra-name>fileIsTooLong</extra-name>
    </message>
    <message id="15410">
        <source>Commands</source>
        <extracomment>For screen readers: the toolbar of a window</extracomment>
        <translation>Commands</translation>
        <extra-name>toolBarName</extra-name>
    </message>
    <message id="15480">
        <source>It is no regular file but a pipe, a device or a socket.</source>
        <extracomment>Reason why a script cannot be opened or saved</extracomment>
        <translation>It is no regular file but a pipe, a device or a socket.</translation>
        <extra-name>fileIsNotRegular</extra-name>
    </message>
    <message id="15481">
        <source>The folder “%s” takes no file: %s</source>
        <extracomment>Reason why a script cannot be saved; %s is the folder, then the system's reason</extracomment>
        <translation>The folder “%s” takes no file: %s</translation>
        <extra-name>folderTakesNoFile</extra-name>
    </message>
    <message id="15482">
        <source>Saved, but a power cut may undo it: %s</source>
        <extracomment>Status bar after saving; %s is the system's reason</extracomment>
        <translation>Saved, but a power cut may undo it: %s</translation>
        <extra-name>savedUnsynced</extra-name>
    </message>
    <message id="15483">
        <source>a power cut may undo the conversion: %s</source>
        <extracomment>Status bar after opening, behind the number of entries; %s is the system's reason</extracomment>
        <translation>a power cut may undo the conversion: %s</translation>
        <extra-name>convertedUnsynced</extra-name>
    </message>
    <message id="16001">
        <source>The character %s cannot be stored in a script.</source>
        <extracomment>Note under a field: a character that scripts cannot hold was typed or pasted</extracomment>
        <translation>The character %s cannot be stored in a script.</translation>
        <extra-name>characterCannotBeStored</extra-name>
    </message>
    <message id="16002">
        <source>At most %d characters fit here.</source>
        <extracomment>Note under a field: the text would be too long</extracomment>
        <translation>At most %d characters fit here.</translation>
        <extra-name>atMostCharacters</extra-name>
    </message>
    <message id="16003">
        <source>A hidden text can have at most %d characters.</source>
        <extracomment>Note and message: a text that is to be hidden is too long</extracomment>
        <translation>A hidden text can have at most %d characters.</translation>
        <extra-name>hiddenTextTooLong</extra-name>
    </message>
    <message id="16004">
        <source>A number from %d to %d</source>
        <extracomment>Note under a number field and its tool tip: the range</extracomment>
        <translation>A number from %d to %d</translation>
        <extra-name>numberRange</extra-name>
    </message>
    <message id="16005">
        <source>%s: enter a number from %d to %d.</source>
        <extracomment>Message: the number in the named field is outside of its range</extracomment>
        <translation>%s: enter a number from %d to %d.</translation>
        <extra-name>numberOutOfRange</extra-name>
    </message>
    <message id="16006">
        <source>You have no user identity: hidden texts are only obscured, and whoever has the script can read them.</source>
        <extracomment>Type dialog: tool tip of the text and of the check box that hides it</extracomment>
        <translation>You have no user identity: hidden texts are only obscured, and whoever has the script can read them.</translation>
        <extra-name>hiddenTextOnlyObscured</extra-name>
    </message>
    <message id="16007">
        <source>Hidden under another user identity</source>
        <extracomment>Type dialog: stands in the empty field of a text that cannot be deciphered</extracomment>
        <translation>Hidden under another user identity</translation>
        <extra-name>hiddenUnderOtherIdentity</extra-name>
    </message>
    <message id="16008">
        <source>&amp;Date</source>
        <extracomment>Wait_Until dialog: check box before the date</extracomment>
        <translation>&amp;Date</translation>
        <extra-name>waitUntilDate</extra-name>
    </message>
    <message id="16009">
        <source>&amp;Time</source>
        <extracomment>Wait_Until dialog: check box before the time of day</extracomment>
        <translation>&amp;Time</translation>
        <extra-name>waitUntilTime</extra-name>
    </message>
    <message id="16030">
        <source>Only the first line was taken.</source>
        <extracomment>Note under a field of one line: several lines were pasted or dropped</extracomment>
        <translation>Only the first line was taken.</translation>
        <extra-name>firstLineTaken</extra-name>
    </message>
    <message id="16031">
        <source>No &amp;Action</source>
        <extracomment>Action dialog: button that takes the action back</extracomment>
        <translation>No &amp;Action</translation>
        <extra-name>noActionButton</extra-name>
    </message>
    <message id="16032">
        <source>combining mark</source>
        <extracomment>Name of a mark that stands over or under a letter, in the note that it cannot be stored</extracomment>
        <translation>combining mark</translation>
        <extra-name>combiningMark</extra-name>
    </message>
    <message id="16033">
        <source>space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored: a space other than the usual one</extracomment>
        <translation>space</translation>
        <extra-name>spaceCharacter</extra-name>
    </message>
    <message id="16034">
        <source>invisible character</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored: any other</extracomment>
        <translation>invisible character</translation>
        <extra-name>unseenCharacter</extra-name>
    </message>
    <message id="16035">
        <source>thin space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>thin space</translation>
        <extra-name>thinSpace</extra-name>
    </message>
    <message id="16036">
        <source>zero width space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>zero width space</translation>
        <extra-name>zeroWidthSpace</extra-name>
    </message>
    <message id="16037">
        <source>zero width non-joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>zero width non-joiner</translation>
        <extra-name>zeroWidthNonJoiner</extra-name>
    </message>
    <message id="16038">
        <source>zero width joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>zero width joiner</translation>
        <extra-name>zeroWidthJoiner</extra-name>
    </message>
    <message id="16039">
        <source>left-to-right mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>left-to-right mark</translation>
        <extra-name>leftToRightMark</extra-name>
    </message>
    <message id="16040">
        <source>“%s” is not there yet: saving makes it</source>
        <extracomment>Status bar after a start with the name of a script that does not exist; %s is the file name</extracomment>
        <translation>“%s” is not there yet: saving makes it</translation>
        <extra-name>scriptIsNotThereYet</extra-name>
    </message>
    <message id="16041">
        <source>The file “%s” could not be opened as a script.

Replace it? The old file is kept as a backup beside it.</source>
        <extracomment>Question when saving, after a start with the name of a file that was refused; %s is its path</extracomment>
        <translation>The file “%s” could not be opened as a script.

Replace it? The old file is kept as a backup beside it.</translation>
        <extra-name>replaceRefusedFileQuestion</extra-name>
    </message>
    <message id="16042">
        <source>Save as VT</source>
        <extracomment>Step that Undo and Redo name: the script has become what a VT file can store of it</extracomment>
        <translation>Save as VT</translation>
        <extra-name>saveAsVtStep</extra-name>
    </message>
    <message id="16043">
        <source>variation selector</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>variation selector</translation>
        <extra-name>variationSelector</extra-name>
    </message>
    <message id="16044">
        <source>byte order mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>byte order mark</translation>
        <extra-name>byteOrderMark</extra-name>
    </message>
    <message id="16100">
        <source>word joiner</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>word joiner</translation>
        <extra-name>wordJoiner</extra-name>
    </message>
    <message id="16101">
        <source>right-to-left mark</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>right-to-left mark</translation>
        <extra-name>rightToLeftMark</extra-name>
    </message>
    <message id="16102">
        <source>narrow no-break space</source>
        <extracomment>Name of a character that cannot be seen, in the note that it cannot be stored</extracomment>
        <translation>narrow no-break space</translation>
        <extra-name>narrowNoBreakSpace</extra-name>
    </message>
    <message id="16210">
        <source>Hidden texts can be neither read nor stored now, for the system’s cipher fails: %s</source>
        <extracomment>Message: a step of the cipher failed; %s is the system’s reason</extracomment>
        <translation>Hidden texts can be neither read nor stored now, for the system’s cipher fails: %s</translation>
        <extra-name>cipherFails</extra-name>
    </message>
    <message id="17100">
        <source>Goto %s: no such label</source>
        <extracomment>Check: a jump to a label that is not there, %s is the label</extracomment>
        <translation>Goto %s: no such label</translation>
        <extra-name>checkLabelMissing</extra-name>
    </message>
    <message id="17101">
        <source>; %s is in step %d</source>
        <extracomment>Check: goes on after the text above: the label that was probably meant and its step</extracomment>
        <translation>; %s is in step %d</translation>
        <extra-name>checkNearestLabel</extra-name>
    </message>
    <message id="17102">
        <source>Label %s is already in step %d, and jumps go there</source>
        <extracomment>Check: a label that was defined before, %s is the label, %d the step of the first</extracomment>
        <translation>Label %s is already in step %d, and jumps go there</translation>
        <extra-name>checkLabelDuplicate</extra-name>
    </message>
    <message id="17103">
        <source>%s: the field %s is empty</source>
        <extracomment>Check: a text that has to be there, the %s are keyword and field name</extracomment>
        <translation>%s: the field %s is empty</translation>
        <extra-name>checkParameterMissing</extra-name>
    </message>
    <message id="17104">
        <source>%s: %s is %s; allowed is %s</source>
        <extracomment>Check: a number outside its range: keyword, field name, number, range such as 1..62</extracomment>
        <translation>%s: %s is %s; allowed is %s</translation>
        <extra-name>checkValueRange</extra-name>
    </message>
    <message id="17105">
        <source>Wait_Until: there is no date %s</source>
        <extracomment>Check: a date such as 2024-2-30</extracomment>
        <translation>Wait_Until: there is no date %s</translation>
        <extra-name>checkNoSuchDate</extra-name>
    </message>
    <message id="17106">
        <source>A terminal of type %s has no key %s</source>
        <extracomment>Check: an LU function that the host type lacks; host type, and group/number of the key</extracomment>
        <translation>A terminal of type %s has no key %s</translation>
        <extra-name>checkKeyUnknown</extra-name>
    </message>
    <message id="17107">
        <source>There is no menu command %s</source>
        <extracomment>Check: the number of a menu command outside the table</extracomment>
        <translation>There is no menu command %s</translation>
        <extra-name>checkMenuCommandUnknown</extra-name>
    </message>
    <message id="17108">
        <source>A script of type %s cannot store this step; saving would lose it</source>
        <extracomment>Check: %s is the host type</extracomment>
        <translation>A script of type %s cannot store this step; saving would lose it</translation>
        <extra-name>checkNotInHostType</extra-name>
    </message>
    <message id="17109">
        <source>The transfer has no host file</source>
        <extracomment>Check</extracomment>
        <translation>The transfer has no host file</translation>
        <extra-name>checkNoHostFile</extra-name>
    </message>
    <message id="17110">
        <source>The transfer has no PC file</source>
        <extracomment>Check</extracomment>
        <translation>The transfer has no PC file</translation>
        <extra-name>checkNoPcFile</extra-name>
    </message>
    <message id="17111">
        <source>The transfer has neither host file nor PC file</source>
        <extracomment>Check</extracomment>
        <translation>The transfer has neither host file nor PC file</translation>
        <extra-name>checkNoFiles</extra-name>
    </message>
    <message id="17112">
        <source>The command line of the transfer has %d characters; what follows the first %d is cut off</source>
        <extracomment>Check</extracomment>
        <translation>The command line of the transfer has %d characters; what follows the first %d is cut off</translation>
        <extra-name>checkTransferCut</extra-name>
    </message>
    <message id="17113">
        <source>Conflict of a merge, %s first: choose between the two sides, and remove the three marks</source>
        <extracomment>Check: %s is the name of the first side</extracomment>
        <translation>Conflict of a merge, %s first: choose between the two sides, and remove the three marks</translation>
        <extra-name>checkMergeConflict</extra-name>
    </message>
    <message id="17114">
        <source>Label %s: no Goto leads here</source>
        <extracomment>Check</extracomment>
        <translation>Label %s: no Goto leads here</translation>
        <extra-name>checkLabelUnused</extra-name>
    </message>
    <message id="17115">
        <source>Label %s is an action: a jump to it goes to the whole step</source>
        <extracomment>Check</extracomment>
        <translation>Label %s is an action: a jump to it goes to the whole step</translation>
        <extra-name>checkLabelAsAction</extra-name>
    </message>
    <message id="17116">
        <source>This step is never reached</source>
        <extracomment>Check</extracomment>
        <translation>This step is never reached</translation>
        <extra-name>checkUnreachable</extra-name>
    </message>
    <message id="17117">
        <source>The steps from %d to %d form a loop in which nothing waits</source>
        <extracomment>Check</extracomment>
        <translation>The steps from %d to %d form a loop in which nothing waits</translation>
        <extra-name>checkBusyLoop</extra-name>
    </message>
    <message id="17118">
        <source>No Input stores %s</source>
        <extracomment>Check: a variable is used that is never set</extracomment>
        <translation>No Input stores %s</translation>
        <extra-name>checkVariableUnset</extra-name>
    </message>
    <message id="17119">
        <source>A password is typed in clear; make a new Type that hides it</source>
        <extracomment>Check</extracomment>
        <translation>A password is typed in clear; make a new Type that hides it</translation>
        <extra-name>checkPasswordInClear</extra-name>
    </message>
    <message id="17120">
        <source>The password of the host file is stored in clear</source>
        <extracomment>Check</extracomment>
        <translation>The password of the host file is stored in clear</translation>
        <extra-name>checkTransferPassword</extra-name>
    </message>
    <message id="17121">
        <source>Your user identity does not open the hidden text</source>
        <extracomment>Check</extracomment>
        <translation>Your user identity does not open the hidden text</translation>
        <extra-name>checkSealedText</extra-name>
    </message>
    <message id="17122">
        <source>Wait_For “%s” gives up at once: its timeout is 0 seconds</source>
        <extracomment>Check</extracomment>
        <translation>Wait_For “%s” gives up at once: its timeout is 0 seconds</translation>
        <extra-name>checkTimeoutZero</extra-name>
    </message>
    <message id="17123">
        <source>Wait_For “%s” has no timeout</source>
        <extracomment>Check</extracomment>
        <translation>Wait_For “%s” has no timeout</translation>
        <extra-name>checkWaitForever</extra-name>
    </message>
    <message id="17124">
        <source>No Clear_Watch ends this Watch_For</source>
        <extracomment>Check</extracomment>
        <translation>No Clear_Watch ends this Watch_For</translation>
        <extra-name>checkWatchKept</extra-name>
    </message>
    <message id="17125">
        <source>You have no user identity: hidden texts are only obscured</source>
        <extracomment>Check</extracomment>
        <translation>You have no user identity: hidden texts are only obscured</translation>
        <extra-name>checkHiddenWithoutKey</extra-name>
    </message>
    <message id="17200">
        <source>&amp;View</source>
        <extracomment>Menu bar: View</extracomment>
        <translation>&amp;View</translation>
        <extra-name>viewMenu</extra-name>
    </message>
    <message id="17201">
        <source>&amp;Problems</source>
        <extracomment>Menu: View, Problems</extracomment>
        <translation>&amp;Problems</translation>
        <extra-name>problemsMenuText</extra-name>
    </message>
    <message id="17202">
        <source>Problems</source>
        <extracomment>Tooltip: Problems; also the title of the list of problems</extracomment>
        <translation>Problems</translation>
        <extra-name>problemsToolTip</extra-name>
    </message>
    <message id="17203">
        <source>Shows or hides the list of what is wrong with the script, or looks wrong.</source>
        <extracomment>Status bar: Problems</extracomment>
        <translation>Shows or hides the list of what is wrong with the script, or looks wrong.</translation>
        <extra-name>problemsStatusText</extra-name>
    </message>
    <message id="17204">
        <source>&amp;Step Numbers and Jumps</source>
        <extracomment>Menu: View, Step Numbers and Jumps</extracomment>
        <translation>&amp;Step Numbers and Jumps</translation>
        <extra-name>gutterMenuText</extra-name>
    </message>
    <message id="17205">
        <source>Step Numbers and Jumps</source>
        <extracomment>Tooltip: Step Numbers and Jumps</extracomment>
        <translation>Step Numbers and Jumps</translation>
        <extra-name>gutterToolTip</extra-name>
    </message>
    <message id="17206">
        <source>Shows or hides the numbers of the steps and the arrows of jumps in the script list.</source>
        <extracomment>Status bar: Step Numbers and Jumps</extracomment>
        <translation>Shows or hides the numbers of the steps and the arrows of jumps in the script list.</translation>
        <extra-name>gutterStatusText</extra-name>
    </message>
    <message id="17207">
        <source>&amp;Next Problem</source>
        <extracomment>Menu: View, Next Problem</extracomment>
        <translation>&amp;Next Problem</translation>
        <extra-name>nextProblemMenuText</extra-name>
    </message>
    <message id="17208">
        <source>Next Problem</source>
        <extracomment>Tooltip: Next Problem</extracomment>
        <translation>Next Problem</translation>
        <extra-name>nextProblemToolTip</extra-name>
    </message>
    <message id="17209">
        <source>Goes to the next step with a problem and tells it.</source>
        <extracomment>Status bar: Next Problem</extracomment>
        <translation>Goes to the next step with a problem and tells it.</translation>
        <extra-name>nextProblemStatusText</extra-name>
    </message>
    <message id="17210">
        <source>Pre&amp;vious Problem</source>
        <extracomment>Menu: View, Previous Problem</extracomment>
        <translation>Pre&amp;vious Problem</translation>
        <extra-name>previousProblemMenuText</extra-name>
    </message>
    <message id="17211">
        <source>Previous Problem</source>
        <extracomment>Tooltip: Previous Problem</extracomment>
        <translation>Previous Problem</translation>
        <extra-name>previousProblemToolTip</extra-name>
    </message>
    <message id="17212">
        <source>Goes to the step before with a problem and tells it.</source>
        <extracomment>Status bar: Previous Problem</extracomment>
        <translation>Goes to the step before with a problem and tells it.</translation>
        <extra-name>previousProblemStatusText</extra-name>
    </message>
    <message id="17213">
        <source>&amp;Quick Fix</source>
        <extracomment>Menu: Edit, Quick Fix, when there is none</extracomment>
        <translation>&amp;Quick Fix</translation>
        <extra-name>quickFixMenuText</extra-name>
    </message>
    <message id="17214">
        <source>Quick Fix</source>
        <extracomment>Tooltip: Quick Fix; also its button</extracomment>
        <translation>Quick Fix</translation>
        <extra-name>quickFixToolTip</extra-name>
    </message>
    <message id="17215">
        <source>Mends the problem of the current step where there is one sensible way.</source>
        <extracomment>Status bar: Quick Fix</extracomment>
        <translation>Mends the problem of the current step where there is one sensible way.</translation>
        <extra-name>quickFixStatusText</extra-name>
    </message>
    <message id="17216">
        <source>&amp;Quick Fix: %s</source>
        <extracomment>Menu: Edit, Quick Fix, %s is what it would do</extracomment>
        <translation>&amp;Quick Fix: %s</translation>
        <extra-name>quickFixStepMenuText</extra-name>
    </message>
    <message id="17217">
        <source>Quick Fix: %s</source>
        <extracomment>Tooltip: Quick Fix, %s is what it would do</extracomment>
        <translation>Quick Fix: %s</translation>
        <extra-name>quickFixStepToolTip</extra-name>
    </message>
    <message id="17218">
        <source>&amp;Go to Step...</source>
        <extracomment>Menu: Edit, Go to Step</extracomment>
        <translation>&amp;Go to Step...</translation>
        <extra-name>goToStepMenuText</extra-name>
    </message>
    <message id="17219">
        <source>Go to Step</source>
        <extracomment>Tooltip: Go to Step; also its bar</extracomment>
        <translation>Go to Step</translation>
        <extra-name>goToStepToolTip</extra-name>
    </message>
    <message id="17220">
        <source>Goes to the step of a number.</source>
        <extracomment>Status bar: Go to Step</extracomment>
        <translation>Goes to the step of a number.</translation>
        <extra-name>goToStepStatusText</extra-name>
    </message>
    <message id="17221">
        <source>Go to step (1 to %s):</source>
        <extracomment>Before the field of Go to Step, %s is the number of steps</extracomment>
        <translation>Go to step (1 to %s):</translation>
        <extra-name>goToStepPrompt</extra-name>
    </message>
    <message id="17222">
        <source>There is no step “%s”; enter a number from 1 to %s</source>
        <extracomment>Go to Step: what was entered, and the number of steps</extracomment>
        <translation>There is no step “%s”; enter a number from 1 to %s</translation>
        <extra-name>goToStepRefused</extra-name>
    </message>
    <message id="17223">
        <source>Step %s of %s</source>
        <extracomment>Status bar: number of the current step, number of steps</extracomment>
        <translation>Step %s of %s</translation>
        <extra-name>stepPosition</extra-name>
    </message>
    <message id="17224">
        <source>Step %s: %s [%s]</source>
        <extracomment>A line of the list of problems: number of the step, message, rule</extracomment>
        <translation>Step %s: %s [%s]</translation>
        <extra-name>problemLine</extra-name>
    </message>
    <message id="17225">
        <source>Error: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Error: %s [%s]</translation>
        <extra-name>errorMessage</extra-name>
    </message>
    <message id="17226">
        <source>Warning: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Warning: %s [%s]</translation>
        <extra-name>warningMessage</extra-name>
    </message>
    <message id="17227">
        <source>Note: %s [%s]</source>
        <extracomment>A problem as it is told where its sign is not seen: message, rule</extracomment>
        <translation>Note: %s [%s]</translation>
        <extra-name>noteMessage</extra-name>
    </message>
    <message id="17228">
        <source>1 error</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>1 error</translation>
        <extra-name>oneError</extra-name>
    </message>
    <message id="17229">
        <source>%s errors</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>%s errors</translation>
        <extra-name>errorCount</extra-name>
    </message>
    <message id="17230">
        <source>1 warning</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>1 warning</translation>
        <extra-name>oneWarning</extra-name>
    </message>
    <message id="17231">
        <source>%s warnings</source>
        <extracomment>Status bar: number of problems</extracomment>
        <translation>%s warnings</translation>
        <extra-name>warningCount</extra-name>
    </message>
    <message id="17232">
        <source>Show the list of problems</source>
        <extracomment>Tooltip of the number of problems in the status bar</extracomment>
        <translation>Show the list of problems</translation>
        <extra-name>showProblems</extra-name>
    </message>
    <message id="17233">
        <source>No problems found</source>
        <extracomment>Status bar after Next Problem, and in the empty list of problems</extracomment>
        <translation>No problems found</translation>
        <extra-name>noProblems</extra-name>
    </message>
    <message id="17234">
        <source>Change to Label %s</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name; %s is the label that a Goto goes to then</extracomment>
        <translation>Change to Label %s</translation>
        <extra-name>fixChangeLabel</extra-name>
    </message>
    <message id="17235">
        <source>Add Label %s at the End</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Add Label %s at the End</translation>
        <extra-name>fixAddLabel</extra-name>
    </message>
    <message id="17236">
        <source>Remove Label %s</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Remove Label %s</translation>
        <extra-name>fixRemoveLabel</extra-name>
    </message>
    <message id="17237">
        <source>Hide Password</source>
        <extracomment>Quick fix, and its name as a step that Undo and Redo name</extracomment>
        <translation>Hide Password</translation>
        <extra-name>fixHidePassword</extra-name>
    </message>
    <message id="17238">
        <source>The current step has no problem</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>The current step has no problem</translation>
        <extra-name>fixNothingHere</extra-name>
    </message>
    <message id="17239">
        <source>This problem has no quick fix: how to mend it is yours to decide</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>This problem has no quick fix: how to mend it is yours to decide</translation>
        <extra-name>fixNeedsDecision</extra-name>
    </message>
    <message id="17240">
        <source>There is no room for the missing label: the script is full</source>
        <extracomment>Why there is no quick fix</extracomment>
        <translation>There is no room for the missing label: the script is full</translation>
        <extra-name>fixNeedsRoom</extra-name>
    </message>
    <message id="17241">
        <source>&amp;Go to Step</source>
        <extracomment>Menu of a problem: go to its step</extracomment>
        <translation>&amp;Go to Step</translation>
        <extra-name>goToProblem</extra-name>
    </message>
    <message id="17242">
        <source>&amp;Help on Checks</source>
        <extracomment>Menu of a problem: the page about checks</extracomment>
        <translation>&amp;Help on Checks</translation>
        <extra-name>helpOnProblem</extra-name>
    </message>
    <message id="17250">
        <source>Find &amp;Next</source>
        <extracomment>Menu Edit</extracomment>
        <translation>Find &amp;Next</translation>
        <extra-name>findNextMenuText</extra-name>
    </message>
    <message id="17251">
        <source>Goes to the next match.</source>
        <extracomment>Status bar: Find Next</extracomment>
        <translation>Goes to the next match.</translation>
        <extra-name>findNextStatusText</extra-name>
    </message>
    <message id="17252">
        <source>Find Pre&amp;vious</source>
        <extracomment>Menu Edit</extracomment>
        <translation>Find Pre&amp;vious</translation>
        <extra-name>findPreviousMenuText</extra-name>
    </message>
    <message id="17253">
        <source>Goes to the previous match.</source>
        <extracomment>Status bar: Find Previous</extracomment>
        <translation>Goes to the previous match.</translation>
        <extra-name>findPreviousStatusText</extra-name>
    </message>
    <message id="17254">
        <source>R&amp;eplace...</source>
        <extracomment>Menu Edit</extracomment>
        <translation>R&amp;eplace...</translation>
        <extra-name>replaceMenuText</extra-name>
    </message>
    <message id="17255">
        <source>Replace</source>
        <extracomment>Tooltip: Replace; also the name of the step in Undo and the title of its messages</extracomment>
        <translation>Replace</translation>
        <extra-name>replaceToolTip</extra-name>
    </message>
    <message id="17256">
        <source>Replaces texts and numbers in the entries.</source>
        <extracomment>Status bar: Replace</extracomment>
        <translation>Replaces texts and numbers in the entries.</translation>
        <extra-name>replaceStatusText</extra-name>
    </message>
    <message id="17257">
        <source>Rename La&amp;bel...</source>
        <extracomment>Menu Entry</extracomment>
        <translation>Rename La&amp;bel...</translation>
        <extra-name>renameLabelMenuText</extra-name>
    </message>
    <message id="17258">
        <source>Rename Label</source>
        <extracomment>Tooltip: Rename Label; also the dialog's title and the name of the step in Undo</extracomment>
        <translation>Rename Label</translation>
        <extra-name>renameLabelToolTip</extra-name>
    </message>
    <message id="17259">
        <source>Renames the label of the current entry in the whole script.</source>
        <extracomment>Status bar: Rename Label</extracomment>
        <translation>Renames the label of the current entry in the whole script.</translation>
        <extra-name>renameLabelStatusText</extra-name>
    </message>
    <message id="17260">
        <source>&amp;Go to Label</source>
        <extracomment>Menu Entry</extracomment>
        <translation>&amp;Go to Label</translation>
        <extra-name>goToLabelMenuText</extra-name>
    </message>
    <message id="17261">
        <source>Go to Label</source>
        <extracomment>Tooltip: Go to Label; also the title of the dialog that asks for one of several</extracomment>
        <translation>Go to Label</translation>
        <extra-name>goToLabelToolTip</extra-name>
    </message>
    <message id="17262">
        <source>Goes to the label that the current entry jumps to.</source>
        <extracomment>Status bar: Go to Label</extracomment>
        <translation>Goes to the label that the current entry jumps to.</translation>
        <extra-name>goToLabelStatusText</extra-name>
    </message>
    <message id="17263">
        <source>Go Bac&amp;k</source>
        <extracomment>Menu Entry</extracomment>
        <translation>Go Bac&amp;k</translation>
        <extra-name>goBackMenuText</extra-name>
    </message>
    <message id="17264">
        <source>Go Back</source>
        <extracomment>Tooltip: Go Back</extracomment>
        <translation>Go Back</translation>
        <extra-name>goBackToolTip</extra-name>
    </message>
    <message id="17265">
        <source>Goes back to the entry from which you went to a label.</source>
        <extracomment>Status bar: Go Back</extracomment>
        <translation>Goes back to the entry from which you went to a label.</translation>
        <extra-name>goBackStatusText</extra-name>
    </message>
    <message id="17266">
        <source>Find &amp;Uses...</source>
        <extracomment>Menu Entry</extracomment>
        <translation>Find &amp;Uses...</translation>
        <extra-name>findUsesMenuText</extra-name>
    </message>
    <message id="17267">
        <source>Find Uses</source>
        <extracomment>Tooltip: Find Uses</extracomment>
        <translation>Find Uses</translation>
        <extra-name>findUsesToolTip</extra-name>
    </message>
    <message id="17268">
        <source>Lists the entries that go to the label of the current entry.</source>
        <extracomment>Status bar: Find Uses</extracomment>
        <translation>Lists the entries that go to the label of the current entry.</translation>
        <extra-name>findUsesStatusText</extra-name>
    </message>
    <message id="17269">
        <source>Match case</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Match case</translation>
        <extra-name>findMatchCase</extra-name>
    </message>
    <message id="17270">
        <source>Whole words</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Whole words</translation>
        <extra-name>findWholeWords</extra-name>
    </message>
    <message id="17271">
        <source>Regular expression</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Regular expression</translation>
        <extra-name>findExpression</extra-name>
    </message>
    <message id="17272">
        <source>Replace with</source>
        <extracomment>Find bar: the empty field of the new text</extracomment>
        <translation>Replace with</translation>
        <extra-name>findReplacement</extra-name>
    </message>
    <message id="17273">
        <source>Re&amp;place</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Re&amp;place</translation>
        <extra-name>replaceButton</extra-name>
    </message>
    <message id="17274">
        <source>Replace A&amp;ll</source>
        <extracomment>Find bar: button</extracomment>
        <translation>Replace A&amp;ll</translation>
        <extra-name>replaceAllButton</extra-name>
    </message>
    <message id="17275">
        <source>Not valid at character %d: %s</source>
        <extracomment>Find bar: place in a regular expression, what is wrong</extracomment>
        <translation>Not valid at character %d: %s</translation>
        <extra-name>findBadExpression</extra-name>
    </message>
    <message id="17276">
        <source>too many ways to match: not all is searched</source>
        <extracomment>Find bar, behind the number of matches: a regular expression was given up</extracomment>
        <translation>too many ways to match: not all is searched</translation>
        <extra-name>findGaveUp</extra-name>
    </message>
    <message id="17277">
        <source>Replace All</source>
        <extracomment>Step in Undo</extracomment>
        <translation>Replace All</translation>
        <extra-name>replaceAllStep</extra-name>
    </message>
    <message id="17278">
        <source>Fields replaced: %d</source>
        <extracomment>Status bar after Replace All</extracomment>
        <translation>Fields replaced: %d</translation>
        <extra-name>replacedCount</extra-name>
    </message>
    <message id="17279">
        <source>These fields cannot be replaced:

%s

Replace in all other fields?</source>
        <extracomment>Replace All; %s is a list</extracomment>
        <translation>These fields cannot be replaced:

%s

Replace in all other fields?</translation>
        <extra-name>replaceOthersQuestion</extra-name>
    </message>
    <message id="17280">
        <source>These fields cannot be replaced, and nothing was changed:

%s</source>
        <extracomment>Replace; %s is a list</extracomment>
        <translation>These fields cannot be replaced, and nothing was changed:

%s</translation>
        <extra-name>replaceRefused</extra-name>
    </message>
    <message id="17281">
        <source>Step %d, %s: %s</source>
        <extracomment>Number of an entry, field, why it cannot be changed</extracomment>
        <translation>Step %d, %s: %s</translation>
        <extra-name>changeRefused</extra-name>
    </message>
    <message id="17282">
        <source>nothing would be left</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>nothing would be left</translation>
        <extra-name>changeEmpty</extra-name>
    </message>
    <message id="17283">
        <source>longer than the field holds</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>longer than the field holds</translation>
        <extra-name>changeTooLong</extra-name>
    </message>
    <message id="17284">
        <source>a character that a script cannot store</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>a character that a script cannot store</translation>
        <extra-name>changeCannotBeStored</extra-name>
    </message>
    <message id="17285">
        <source>no number that the field can hold</source>
        <extracomment>Why a field cannot be changed</extracomment>
        <translation>no number that the field can hold</translation>
        <extra-name>changeOutOfRange</extra-name>
    </message>
    <message id="17286">
        <source>Variables</source>
        <extracomment>Dialog of Type: button that offers the names of variables</extracomment>
        <translation>Variables</translation>
        <extra-name>offeredVariables</extra-name>
    </message>
    <message id="17287">
        <source>Only texts and numbers of entries can be replaced</source>
        <extracomment>Status bar: what was found is the name of a command or a key</extracomment>
        <translation>Only texts and numbers of entries can be replaced</translation>
        <extra-name>replaceNotHere</extra-name>
    </message>
    <message id="17288">
        <source>Text</source>
        <extracomment>Field of an entry</extracomment>
        <translation>Text</translation>
        <extra-name>fieldText</extra-name>
    </message>
    <message id="17289">
        <source>&amp;Label:</source>
        <extracomment>Rename Label: which one of several</extracomment>
        <translation>&amp;Label:</translation>
        <extra-name>renameLabelChoice</extra-name>
    </message>
    <message id="17290">
        <source>Second value</source>
        <extracomment>Field of If_Input_Is</extracomment>
        <translation>Second value</translation>
        <extra-name>fieldSecondValue</extra-name>
    </message>
    <message id="17291">
        <source>Number</source>
        <extracomment>Field of Wait and Wait_Ready</extracomment>
        <translation>Number</translation>
        <extra-name>fieldNumber</extra-name>
    </message>
    <message id="17292">
        <source>Labels of this script</source>
        <extracomment>Dialog of Goto: button that offers them</extracomment>
        <translation>Labels of this script</translation>
        <extra-name>offeredLabels</extra-name>
    </message>
    <message id="17293">
        <source>Date and time</source>
        <extracomment>Field of Wait_Until</extracomment>
        <translation>Date and time</translation>
        <extra-name>fieldDateAndTime</extra-name>
    </message>
    <message id="17294">
        <source>Further number</source>
        <extracomment>Field of a menu command</extracomment>
        <translation>Further number</translation>
        <extra-name>fieldCommandData</extra-name>
    </message>
    <message id="17295">
        <source>&amp;New name:</source>
        <extracomment>Rename Label</extracomment>
        <translation>&amp;New name:</translation>
        <extra-name>renameLabelField</extra-name>
    </message>
    <message id="17296">
        <source>Steps that change: %d</source>
        <extracomment>Rename Label</extracomment>
        <translation>Steps that change: %d</translation>
        <extra-name>renameLabelChanges</extra-name>
    </message>
    <message id="17297">
        <source>There is a label of that name already, in step %d.</source>
        <extracomment>Rename Label</extracomment>
        <translation>There is a label of that name already, in step %d.</translation>
        <extra-name>renameLabelExists</extra-name>
    </message>
    <message id="17298">
        <source>Uses of %s</source>
        <extracomment>Title of the list; %s is the name of a label</extracomment>
        <translation>Uses of %s</translation>
        <extra-name>usesTitle</extra-name>
    </message>
    <message id="17299">
        <source>Nothing goes to %s</source>
        <extracomment>Status bar; %s is the name of a label</extracomment>
        <translation>Nothing goes to %s</translation>
        <extra-name>nothingUses</extra-name>
    </message>
    <message id="17300">
        <source>Compare With &amp;File...</source>
        <extracomment>Menu: File, Compare With File</extracomment>
        <translation>Compare With &amp;File...</translation>
        <extra-name>compareFileMenuText</extra-name>
    </message>
    <message id="17301">
        <source>Compare With File</source>
        <extracomment>Toolbar</extracomment>
        <translation>Compare With File</translation>
        <extra-name>compareFileToolTip</extra-name>
    </message>
    <message id="17302">
        <source>Compares the script with another script file, entry by entry.</source>
        <extracomment>Status bar</extracomment>
        <translation>Compares the script with another script file, entry by entry.</translation>
        <extra-name>compareFileStatusText</extra-name>
    </message>
    <message id="17303">
        <source>Compare With Sa&amp;ved</source>
        <extracomment>Menu: File, Compare With Saved</extracomment>
        <translation>Compare With Sa&amp;ved</translation>
        <extra-name>compareSavedMenuText</extra-name>
    </message>
    <message id="17304">
        <source>Compare With Saved</source>
        <extracomment>Toolbar</extracomment>
        <translation>Compare With Saved</translation>
        <extra-name>compareSavedToolTip</extra-name>
    </message>
    <message id="17305">
        <source>Shows what has changed since the script was opened or last saved.</source>
        <extracomment>Status bar</extracomment>
        <translation>Shows what has changed since the script was opened or last saved.</translation>
        <extra-name>compareSavedStatusText</extra-name>
    </message>
    <message id="17306">
        <source>&amp;Resolve Conflicts...</source>
        <extracomment>Menu: File, Resolve Conflicts</extracomment>
        <translation>&amp;Resolve Conflicts...</translation>
        <extra-name>resolveConflictsMenuText</extra-name>
    </message>
    <message id="17307">
        <source>Resolve Conflicts</source>
        <extracomment>Toolbar</extracomment>
        <translation>Resolve Conflicts</translation>
        <extra-name>resolveConflictsToolTip</extra-name>
    </message>
    <message id="17308">
        <source>Chooses between the two sides where a merge found conflicts.</source>
        <extracomment>Status bar</extracomment>
        <translation>Chooses between the two sides where a merge found conflicts.</translation>
        <extra-name>resolveConflictsStatusText</extra-name>
    </message>
    <message id="17309">
        <source>%s and %s  -  Compare</source>
        <extracomment>Title of the window that compares; %s are the names of the sides</extracomment>
        <translation>%s and %s  -  Compare</translation>
        <extra-name>reviewCompareTitle</extra-name>
    </message>
    <message id="17310">
        <source>%s  -  Resolve Conflicts</source>
        <extracomment>Title of the same window for the conflicts of a merge; %s is the script</extracomment>
        <translation>%s  -  Resolve Conflicts</translation>
        <extra-name>reviewResolveTitle</extra-name>
    </message>
    <message id="17311">
        <source>%s, as saved</source>
        <extracomment>Name of a side; %s is the script</extracomment>
        <translation>%s, as saved</translation>
        <extra-name>reviewSideSaved</extra-name>
    </message>
    <message id="17312">
        <source>%s, in the editor</source>
        <extracomment>Name of a side; %s is the script</extracomment>
        <translation>%s, in the editor</translation>
        <extra-name>reviewSideEditor</extra-name>
    </message>
    <message id="17313">
        <source>The scripts are the same</source>
        <extracomment>Summary</extracomment>
        <translation>The scripts are the same</translation>
        <extra-name>reviewSame</extra-name>
    </message>
    <message id="17314">
        <source>1 change</source>
        <extracomment>Summary</extracomment>
        <translation>1 change</translation>
        <extra-name>reviewOneChange</extra-name>
    </message>
    <message id="17315">
        <source>%d changes</source>
        <extracomment>Summary</extracomment>
        <translation>%d changes</translation>
        <extra-name>reviewChanges</extra-name>
    </message>
    <message id="17316">
        <source>Change %d of %d</source>
        <extracomment>Summary: which change is the current one</extracomment>
        <translation>Change %d of %d</translation>
        <extra-name>reviewChangePosition</extra-name>
    </message>
    <message id="17317">
        <source>No conflicts</source>
        <extracomment>Summary</extracomment>
        <translation>No conflicts</translation>
        <extra-name>reviewNoConflicts</extra-name>
    </message>
    <message id="17318">
        <source>1 conflict</source>
        <extracomment>Summary</extracomment>
        <translation>1 conflict</translation>
        <extra-name>reviewOneConflict</extra-name>
    </message>
    <message id="17319">
        <source>%d conflicts</source>
        <extracomment>Summary</extracomment>
        <translation>%d conflicts</translation>
        <extra-name>reviewConflicts</extra-name>
    </message>
    <message id="17320">
        <source>Conflict %d of %d</source>
        <extracomment>Summary: which conflict is the current one</extracomment>
        <translation>Conflict %d of %d</translation>
        <extra-name>reviewConflictPosition</extra-name>
    </message>
    <message id="17321">
        <source>; the host types differ: %s and %s</source>
        <extracomment>Summary: goes on after the number of changes; %s are host types</extracomment>
        <translation>; the host types differ: %s and %s</translation>
        <extra-name>reviewHostTypes</extra-name>
    </message>
    <message id="17322">
        <source>; on from the start</source>
        <extracomment>Summary: goes on after the position</extracomment>
        <translation>; on from the start</translation>
        <extra-name>reviewFromStart</extra-name>
    </message>
    <message id="17323">
        <source>; on from the end</source>
        <extracomment>Summary: goes on after the position</extracomment>
        <translation>; on from the end</translation>
        <extra-name>reviewFromEnd</extra-name>
    </message>
    <message id="17324">
        <source>Next change</source>
        <extracomment>Tool tip of a button</extracomment>
        <translation>Next change</translation>
        <extra-name>reviewNext</extra-name>
    </message>
    <message id="17325">
        <source>Previous change</source>
        <extracomment>Tool tip of a button</extracomment>
        <translation>Previous change</translation>
        <extra-name>reviewPrevious</extra-name>
    </message>
    <message id="17326">
        <source>&amp;Take Over</source>
        <extracomment>Button; also the name of the step for Undo</extracomment>
        <translation>&amp;Take Over</translation>
        <extra-name>reviewTakeOver</extra-name>
    </message>
    <message id="17327">
        <source>Keep &amp;Ours</source>
        <extracomment>Button: the left side of a conflict</extracomment>
        <translation>Keep &amp;Ours</translation>
        <extra-name>reviewKeepOurs</extra-name>
    </message>
    <message id="17328">
        <source>Keep &amp;Theirs</source>
        <extracomment>Button: the right side of a conflict</extracomment>
        <translation>Keep &amp;Theirs</translation>
        <extra-name>reviewKeepTheirs</extra-name>
    </message>
    <message id="17329">
        <source>Keep &amp;Both</source>
        <extracomment>Button: both sides of a conflict</extracomment>
        <translation>Keep &amp;Both</translation>
        <extra-name>reviewKeepBoth</extra-name>
    </message>
    <message id="17330">
        <source>changed</source>
        <extracomment>What became of an entry; also of a hidden text</extracomment>
        <translation>changed</translation>
        <extra-name>reviewChanged</extra-name>
    </message>
    <message id="17331">
        <source>only on the left</source>
        <extracomment>What became of an entry</extracomment>
        <translation>only on the left</translation>
        <extra-name>reviewGone</extra-name>
    </message>
    <message id="17332">
        <source>only on the right</source>
        <extracomment>What became of an entry</extracomment>
        <translation>only on the right</translation>
        <extra-name>reviewNew</extra-name>
    </message>
    <message id="17333">
        <source>moved, entry %d on the right</source>
        <extracomment>What became of an entry; %d is its number on the other side</extracomment>
        <translation>moved, entry %d on the right</translation>
        <extra-name>reviewMovedAway</extra-name>
    </message>
    <message id="17334">
        <source>moved, entry %d on the left</source>
        <extracomment>What became of an entry; %d is its number on the other side</extracomment>
        <translation>moved, entry %d on the left</translation>
        <extra-name>reviewMovedHere</extra-name>
    </message>
    <message id="17335">
        <source>conflict</source>
        <extracomment>What an entry is part of</extracomment>
        <translation>conflict</translation>
        <extra-name>reviewConflict</extra-name>
    </message>
    <message id="17336">
        <source>no entry on this side</source>
        <extracomment>Where one side of a conflict has no entry</extracomment>
        <translation>no entry on this side</translation>
        <extra-name>reviewNothing</extra-name>
    </message>
    <message id="17337">
        <source>left, entry %d: %s</source>
        <extracomment>One side of a row, as it is read aloud; number and line of the entry</extracomment>
        <translation>left, entry %d: %s</translation>
        <extra-name>reviewLeftEntry</extra-name>
    </message>
    <message id="17338">
        <source>right, entry %d: %s</source>
        <extracomment>One side of a row, as it is read aloud; number and line of the entry</extracomment>
        <translation>right, entry %d: %s</translation>
        <extra-name>reviewRightEntry</extra-name>
    </message>
    <message id="17339">
        <source>the same</source>
        <extracomment>What became of an entry</extracomment>
        <translation>the same</translation>
        <extra-name>reviewSameEntry</extra-name>
    </message>
    <message id="17340">
        <source>Take Over: entry %d of the left side replaces entry %d of the script</source>
        <extracomment>What the button would do; the numbers of entries</extracomment>
        <translation>Take Over: entry %d of the left side replaces entry %d of the script</translation>
        <extra-name>reviewTakesChanged</extra-name>
    </message>
    <message id="17341">
        <source>Take Over: entry %d of the left side is inserted into the script</source>
        <extracomment>What the button would do</extracomment>
        <translation>Take Over: entry %d of the left side is inserted into the script</translation>
        <extra-name>reviewTakesGone</extra-name>
    </message>
    <message id="17342">
        <source>Take Over: entry %d is removed from the script</source>
        <extracomment>What the button would do</extracomment>
        <translation>Take Over: entry %d is removed from the script</translation>
        <extra-name>reviewTakesNew</extra-name>
    </message>
    <message id="17343">
        <source>Take Over: entry %d of the script moves to where it is on the left</source>
        <extracomment>What the button would do</extracomment>
        <translation>Take Over: entry %d of the script moves to where it is on the left</translation>
        <extra-name>reviewTakesMoved</extra-name>
    </message>
    <message id="17344">
        <source>Take Over: the %d selected changes become as on the left</source>
        <extracomment>What the button would do</extracomment>
        <translation>Take Over: the %d selected changes become as on the left</translation>
        <extra-name>reviewTakesSelected</extra-name>
    </message>
    <message id="17345">
        <source>What you keep replaces the entries %d to %d of the script</source>
        <extracomment>What the buttons would do; %d are numbers of entries</extracomment>
        <translation>What you keep replaces the entries %d to %d of the script</translation>
        <extra-name>reviewKeepsSide</extra-name>
    </message>
    <message id="17346">
        <source>Take Over</source>
        <extracomment>Name of a step for Undo</extracomment>
        <translation>Take Over</translation>
        <extra-name>reviewTakeOverStep</extra-name>
    </message>
    <message id="17347">
        <source>Left alone, because they lie within each other or lack their counterparts: the conflict marks in the entries %s</source>
        <extracomment>Message in the window; %s are numbers of entries</extracomment>
        <translation>Left alone, because they lie within each other or lack their counterparts: the conflict marks in the entries %s</translation>
        <extra-name>reviewStrayMarks</extra-name>
    </message>
    <message id="17348">
        <source>hidden</source>
        <extracomment>In place of the value of a field</extracomment>
        <translation>hidden</translation>
        <extra-name>reviewHidden</extra-name>
    </message>
    <message id="17349">
        <source>(none)</source>
        <extracomment>In place of the value of a field</extracomment>
        <translation>(none)</translation>
        <extra-name>reviewNoValue</extra-name>
    </message>
    <message id="17350">
        <source>Quendra Script Editor Help</source>
        <extracomment>Help window: title over the start page</extracomment>
        <translation>Quendra Script Editor Help</translation>
        <extra-name>helpStartTitle</extra-name>
    </message>
    <message id="17351">
        <source>Find in this page</source>
        <extracomment>Help window: field that searches the page</extracomment>
        <translation>Find in this page</translation>
        <extra-name>helpFindInPage</extra-name>
    </message>
    <message id="17352">
        <source>No conflict that can be resolved here</source>
        <extracomment>Window of conflicts: there are only marks that make up none</extracomment>
        <translation>No conflict that can be resolved here</translation>
        <extra-name>reviewOnlyStrayMarks</extra-name>
    </message>
    <message id="17353">
        <source>The script would then have more than %d entries. Nothing was changed.</source>
        <extracomment>Message when changes are taken over; %d is the most that a script can have</extracomment>
        <translation>The script would then have more than %d entries. Nothing was changed.</translation>
        <extra-name>reviewTooManyEntries</extra-name>
    </message>
    <message id="17400">
        <source>&amp;Insert by Name...</source>
        <extracomment>Menu Edit: opens a search over everything that can be inserted</extracomment>
        <translation>&amp;Insert by Name...</translation>
        <extra-name>insertByNameMenuText</extra-name>
    </message>
    <message id="17401">
        <source>Insert by Name</source>
        <extracomment>Tooltip: Insert by Name; also its panel</extracomment>
        <translation>Insert by Name</translation>
        <extra-name>insertByNameToolTip</extra-name>
    </message>
    <message id="17402">
        <source>Finds a script event, an LU function or a menu command by its name and inserts it.</source>
        <extracomment>Status bar: Insert by Name</extracomment>
        <translation>Finds a script event, an LU function or a menu command by its name and inserts it.</translation>
        <extra-name>insertByNameStatusText</extra-name>
    </message>
    <message id="17403">
        <source>Next &amp;List</source>
        <extracomment>Menu View: moves the keyboard focus</extracomment>
        <translation>Next &amp;List</translation>
        <extra-name>nextListMenuText</extra-name>
    </message>
    <message id="17404">
        <source>Next List</source>
        <extracomment>Tooltip: Next List</extracomment>
        <translation>Next List</translation>
        <extra-name>nextListToolTip</extra-name>
    </message>
    <message id="17405">
        <source>Goes on from the script to the palettes, from one to the next, and back to the script.</source>
        <extracomment>Status bar: Next List</extracomment>
        <translation>Goes on from the script to the palettes, from one to the next, and back to the script.</translation>
        <extra-name>nextListStatusText</extra-name>
    </message>
    <message id="17406">
        <source>P&amp;revious List</source>
        <extracomment>Menu View: moves the keyboard focus</extracomment>
        <translation>P&amp;revious List</translation>
        <extra-name>previousListMenuText</extra-name>
    </message>
    <message id="17407">
        <source>Previous List</source>
        <extracomment>Tooltip: Previous List</extracomment>
        <translation>Previous List</translation>
        <extra-name>previousListToolTip</extra-name>
    </message>
    <message id="17408">
        <source>Goes round script and palettes the other way.</source>
        <extracomment>Status bar: Previous List</extracomment>
        <translation>Goes round script and palettes the other way.</translation>
        <extra-name>previousListStatusText</extra-name>
    </message>
    <message id="17409">
        <source>Name or initials</source>
        <extracomment>Insert by Name: in the empty field</extracomment>
        <translation>Name or initials</translation>
        <extra-name>insertByNameField</extra-name>
    </message>
    <message id="17410">
        <source>What can be inserted</source>
        <extracomment>Insert by Name: accessible name of the list</extracomment>
        <translation>What can be inserted</translation>
        <extra-name>insertByNameList</extra-name>
    </message>
    <message id="17411">
        <source>Nothing is called “%s”</source>
        <extracomment>Insert by Name: in place of the list, %s is what was typed</extracomment>
        <translation>Nothing is called “%s”</translation>
        <extra-name>insertByNameNothing</extra-name>
    </message>
    <message id="17412">
        <source>%s, %s</source>
        <extracomment>Insert by Name: a row as a screen reader tells it; a name, and the title of its palette</extracomment>
        <translation>%s, %s</translation>
        <extra-name>insertByNameRow</extra-name>
    </message>
    <message id="17450">
        <source>This script has no steps yet. Double-click a script event on the right, or select it and press Return, to make the first one.</source>
        <extracomment>In the empty script list</extracomment>
        <translation>This script has no steps yet. Double-click a script event on the right, or select it and press Return, to make the first one.</translation>
        <extra-name>emptyScriptHint</extra-name>
    </message>
    <message id="17451">
        <source>Dupl&amp;icate</source>
        <extracomment>Menu item</extracomment>
        <translation>Dupl&amp;icate</translation>
        <extra-name>duplicateMenuText</extra-name>
    </message>
    <message id="17452">
        <source>Duplicate</source>
        <extracomment>Tool tip</extracomment>
        <translation>Duplicate</translation>
        <extra-name>duplicateToolTip</extra-name>
    </message>
    <message id="17453">
        <source>Inserts a copy of the selected entries behind them.</source>
        <extracomment>Status bar</extracomment>
        <translation>Inserts a copy of the selected entries behind them.</translation>
        <extra-name>duplicateStatusText</extra-name>
    </message>
    <message id="17454">
        <source>Duplicate %s</source>
        <extracomment>Name of a step for Undo; %s is a number of entries</extracomment>
        <translation>Duplicate %s</translation>
        <extra-name>duplicateStep</extra-name>
    </message>
    <message id="17455">
        <source>Move U&amp;p</source>
        <extracomment>Menu item</extracomment>
        <translation>Move U&amp;p</translation>
        <extra-name>moveUpMenuText</extra-name>
    </message>
    <message id="17456">
        <source>Move Up</source>
        <extracomment>Tool tip</extracomment>
        <translation>Move Up</translation>
        <extra-name>moveUpToolTip</extra-name>
    </message>
    <message id="17457">
        <source>Moves the selected entries up by one.</source>
        <extracomment>Status bar</extracomment>
        <translation>Moves the selected entries up by one.</translation>
        <extra-name>moveUpStatusText</extra-name>
    </message>
    <message id="17458">
        <source>Move Do&amp;wn</source>
        <extracomment>Menu item</extracomment>
        <translation>Move Do&amp;wn</translation>
        <extra-name>moveDownMenuText</extra-name>
    </message>
    <message id="17459">
        <source>Move Down</source>
        <extracomment>Tool tip</extracomment>
        <translation>Move Down</translation>
        <extra-name>moveDownToolTip</extra-name>
    </message>
    <message id="17460">
        <source>Moves the selected entries down by one.</source>
        <extracomment>Status bar</extracomment>
        <translation>Moves the selected entries down by one.</translation>
        <extra-name>moveDownStatusText</extra-name>
    </message>
    <message id="17461">
        <source>Open Recen&amp;t</source>
        <extracomment>Menu title</extracomment>
        <translation>Open Recen&amp;t</translation>
        <extra-name>recentMenu</extra-name>
    </message>
    <message id="17462">
        <source>%s (not there)</source>
        <extracomment>Menu item; %s is the name of a script</extracomment>
        <translation>%s (not there)</translation>
        <extra-name>recentGone</extra-name>
    </message>
    <message id="17463">
        <source>&amp;Clear List</source>
        <extracomment>Menu item</extracomment>
        <translation>&amp;Clear List</translation>
        <extra-name>recentClear</extra-name>
    </message>
    <message id="17464">
        <source>Re&amp;load</source>
        <extracomment>Menu item</extracomment>
        <translation>Re&amp;load</translation>
        <extra-name>reloadMenuText</extra-name>
    </message>
    <message id="17465">
        <source>Reload</source>
        <extracomment>Tool tip</extracomment>
        <translation>Reload</translation>
        <extra-name>reloadToolTip</extra-name>
    </message>
    <message id="17466">
        <source>Reads the script from its file again.</source>
        <extracomment>Status bar</extracomment>
        <translation>Reads the script from its file again.</translation>
        <extra-name>reloadStatusText</extra-name>
    </message>
    <message id="17467">
        <source>Read %s again? The changes that are not saved will be lost.</source>
        <extracomment>Question; %s is the path of the script</extracomment>
        <translation>Read %s again? The changes that are not saved will be lost.</translation>
        <extra-name>reloadDiscards</extra-name>
    </message>
    <message id="17468">
        <source>&amp;Example Scripts</source>
        <extracomment>Menu title</extracomment>
        <translation>&amp;Example Scripts</translation>
        <extra-name>examplesMenu</extra-name>
    </message>
    <message id="17469">
        <source>A copy of the example %s; save it under a name of your own</source>
        <extracomment>Status bar; %s is a file name</extracomment>
        <translation>A copy of the example %s; save it under a name of your own</translation>
        <extra-name>exampleOpened</extra-name>
    </message>
</context>
</TS>
