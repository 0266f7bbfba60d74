<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CDeviceConfigurationFile</name>
    <message>
        <source>The device configuration file was created with a previous version</source>
        <translation>Die Gerätekonfigurationsdatei wurde mit einer früheren Version erstellt</translation>
    </message>
    <message>
        <source>The device configuration file was created with a later version</source>
        <translation>Die Gerätekonfigurationsdatei wurde mit einer späteren Version erstellt</translation>
    </message>
    <message>
        <source>The sub-device &apos;%1&apos; is left out: all drive numbers are used.</source>
        <translation>Das Untergerät &apos;%1&apos; wird ausgelassen: Alle Antriebsnummern sind belegt.</translation>
    </message>
    <message>
        <source>The sub-device &apos;%1&apos; has no drive number of its own and gets %2.</source>
        <translation>Das Untergerät &apos;%1&apos; hat keine eigene Antriebsnummer und bekommt %2.</translation>
    </message>
    <message>
        <source>The hardware identity &apos;%1&apos; of &apos;%2&apos; cannot be read.</source>
        <translation>Die Hardwarekennung &apos;%1&apos; von &apos;%2&apos; ist nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>CDeviceConfigurationFile10</name>
    <message>
        <source>The configuration file was created with a previous version</source>
        <translation>Die Konfigurationsdatei wurde mit einer früheren Version erstellt</translation>
    </message>
    <message>
        <source>The configuration file was created with a later version</source>
        <translation>Die Konfigurationsdatei wurde mit einer späteren Version erstellt</translation>
    </message>
    <message>
        <source>The device configuration file could not be opened: %1</source>
        <translation>Die Gerätekonfigurationsdatei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The device configuration file buffer could not be loaded.</source>
        <translation>Der Puffer mit der Gerätekonfiguration konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The project path of &apos;%1&apos; is invalid and will be removed.</source>
        <translation>Der Projektpfad von &apos;%1&apos; ist ungültig und wird entfernt.</translation>
    </message>
</context>
<context>
    <name>CDeviceSettingsFileBase</name>
    <message>
        <source>Device settings file version error: required %1, existing %2</source>
        <translation>Falsche Version der Geräteeinstellungen: verlangt %1, vorhanden %2</translation>
    </message>
</context>
<context>
    <name>CDeviceSystemMessage</name>
    <message>
        <source>System: Mount Error</source>
        <translation>System: Fehler beim Einhängen</translation>
    </message>
    <message>
        <source>APP partition can not be mounted.</source>
        <translation>Die APP-Partition kann nicht eingehängt werden.</translation>
    </message>
    <message>
        <source>Hardware not configured</source>
        <translation>Hardware nicht konfiguriert</translation>
    </message>
    <message>
        <source>HW.xml not found.</source>
        <translation>HW.xml nicht gefunden.</translation>
    </message>
    <message>
        <source>Too much errors</source>
        <translation>Zu viele Fehler</translation>
    </message>
    <message>
        <source>Application start: execution_counter &gt; 5.</source>
        <translation>Anwendungsstart: execution_counter &gt; 5.</translation>
    </message>
    <message>
        <source>Critical boot error</source>
        <translation>Kritischer Fehler beim Hochlauf</translation>
    </message>
    <message>
        <source>Critical error discovered on startup. Firmware is not started.
See &apos;/var/log/handleBootError.log&apos; or &apos;/var/log/boot_err&apos;.</source>
        <translation>Beim Hochlauf wurde ein kritischer Fehler erkannt. Die Firmware wird nicht gestartet.
Siehe &apos;/var/log/handleBootError.log&apos; oder &apos;/var/log/boot_err&apos;.</translation>
    </message>
    <message>
        <source>Signal 1: SIGHUP</source>
        <translation>Signal 1: SIGHUP</translation>
    </message>
    <message>
        <source>Hangup detected on controlling terminal or death of controlling process</source>
        <translation>Verbindung zum steuernden Terminal getrennt oder steuernder Prozess beendet</translation>
    </message>
    <message>
        <source>Signal 2: SIGINT</source>
        <translation>Signal 2: SIGINT</translation>
    </message>
    <message>
        <source>Interrupt from keyboard.</source>
        <translation>Unterbrechung von der Tastatur.</translation>
    </message>
    <message>
        <source>Signal 3: SIGQUIT</source>
        <translation>Signal 3: SIGQUIT</translation>
    </message>
    <message>
        <source>Quit from keyboard.</source>
        <translation>Abbruch von der Tastatur.</translation>
    </message>
    <message>
        <source>Signal 4: SIGILL</source>
        <translation>Signal 4: SIGILL</translation>
    </message>
    <message>
        <source>Illegal Instruction.</source>
        <translation>Unzulässiger Befehl.</translation>
    </message>
    <message>
        <source>Signal 5: SIGTRAP</source>
        <translation>Signal 5: SIGTRAP</translation>
    </message>
    <message>
        <source>Trace/breakpoint trap.</source>
        <translation>Ablaufverfolgung oder Haltepunkt erreicht.</translation>
    </message>
    <message>
        <source>Signal 6: SIGABRT</source>
        <translation>Signal 6: SIGABRT</translation>
    </message>
    <message>
        <source>Program terminated abnormally.</source>
        <translation>Programm außerplanmäßig beendet.</translation>
    </message>
    <message>
        <source>Signal 7: SIGBUS</source>
        <translation>Signal 7: SIGBUS</translation>
    </message>
    <message>
        <source>Bus error (bad memory access).</source>
        <translation>Busfehler (falscher Speicherzugriff).</translation>
    </message>
    <message>
        <source>Signal 8: SIGFPE</source>
        <translation>Signal 8: SIGFPE</translation>
    </message>
    <message>
        <source>Floating point exception.</source>
        <translation>Gleitkommafehler.</translation>
    </message>
    <message>
        <source>Signal 9: SIGKILL</source>
        <translation>Signal 9: SIGKILL</translation>
    </message>
    <message>
        <source>Kill signal.</source>
        <translation>Sofortiges Beenden erzwungen.</translation>
    </message>
    <message>
        <source>Signal 10: SIGUSR1</source>
        <translation>Signal 10: SIGUSR1</translation>
    </message>
    <message>
        <source>User-defined signal 1.</source>
        <translation>Benutzerdefiniertes Signal 1.</translation>
    </message>
    <message>
        <source>Signal 11: SIGSEGV</source>
        <translation>Signal 11: SIGSEGV</translation>
    </message>
    <message>
        <source>Invalid memory reference.</source>
        <translation>Ungültiger Speicherzugriff.</translation>
    </message>
    <message>
        <source>Signal 12: SIGUSR2</source>
        <translation>Signal 12: SIGUSR2</translation>
    </message>
    <message>
        <source>User-defined signal 2.</source>
        <translation>Benutzerdefiniertes Signal 2.</translation>
    </message>
    <message>
        <source>Signal 13: SIGPIPE</source>
        <translation>Signal 13: SIGPIPE</translation>
    </message>
    <message>
        <source>Broken pipe: write to pipe with no readers.</source>
        <translation>Unterbrochene Pipe: Schreiben in eine Pipe ohne Leser.</translation>
    </message>
    <message>
        <source>Signal 14: SIGALRM</source>
        <translation>Signal 14: SIGALRM</translation>
    </message>
    <message>
        <source>Timer signal from alarm().</source>
        <translation>Zeitgebersignal von alarm().</translation>
    </message>
    <message>
        <source>Signal 15: SIGTERM</source>
        <translation>Signal 15: SIGTERM</translation>
    </message>
    <message>
        <source>Termination signal.</source>
        <translation>Aufforderung zum Beenden.</translation>
    </message>
    <message>
        <source>Signal 16: SIGSTKFLT</source>
        <translation>Signal 16: SIGSTKFLT</translation>
    </message>
    <message>
        <source>Stack fault on coprocessor (unused).</source>
        <translation>Stapelfehler im Koprozessor (unbenutzt).</translation>
    </message>
    <message>
        <source>Signal 17: SIGCHLD</source>
        <translation>Signal 17: SIGCHLD</translation>
    </message>
    <message>
        <source>Child stopped or terminated.</source>
        <translation>Kindprozess angehalten oder beendet.</translation>
    </message>
    <message>
        <source>Signal 18: SIGCONT</source>
        <translation>Signal 18: SIGCONT</translation>
    </message>
    <message>
        <source>Continue if stopped.</source>
        <translation>Fortsetzen, falls angehalten.</translation>
    </message>
    <message>
        <source>Signal 19: SIGSTOP</source>
        <translation>Signal 19: SIGSTOP</translation>
    </message>
    <message>
        <source>Stop process.</source>
        <translation>Prozess anhalten.</translation>
    </message>
    <message>
        <source>Signal 20: SIGTSTP</source>
        <translation>Signal 20: SIGTSTP</translation>
    </message>
    <message>
        <source>Stop typed at terminal.</source>
        <translation>Anhalten am Terminal eingegeben.</translation>
    </message>
    <message>
        <source>Signal 21: SIGTTIN</source>
        <translation>Signal 21: SIGTTIN</translation>
    </message>
    <message>
        <source>Terminal input for background process.</source>
        <translation>Terminaleingabe für einen Hintergrundprozess.</translation>
    </message>
    <message>
        <source>Signal 22: SIGTTOU</source>
        <translation>Signal 22: SIGTTOU</translation>
    </message>
    <message>
        <source>Terminal output for background process.</source>
        <translation>Terminalausgabe eines Hintergrundprozesses.</translation>
    </message>
    <message>
        <source>Signal 23: SIGURG</source>
        <translation>Signal 23: SIGURG</translation>
    </message>
    <message>
        <source>Urgent condition on socket.</source>
        <translation>Dringender Zustand an einem Socket.</translation>
    </message>
    <message>
        <source>Signal 24: SIGXCPU</source>
        <translation>Signal 24: SIGXCPU</translation>
    </message>
    <message>
        <source>CPU time limit exceeded.</source>
        <translation>CPU-Zeit überschritten.</translation>
    </message>
    <message>
        <source>Signal 25: SIGXFSZ</source>
        <translation>Signal 25: SIGXFSZ</translation>
    </message>
    <message>
        <source>File size limit exceeded.</source>
        <translation>Zulässige Dateigröße überschritten.</translation>
    </message>
    <message>
        <source>Signal 26: SIGVTALRM</source>
        <translation>Signal 26: SIGVTALRM</translation>
    </message>
    <message>
        <source>Virtual alarm clock.</source>
        <translation>Virtueller Wecker.</translation>
    </message>
    <message>
        <source>Signal 27: SIGPROF</source>
        <translation>Signal 27: SIGPROF</translation>
    </message>
    <message>
        <source>Profiling timer expired.</source>
        <translation>Zeitgeber der Laufzeitmessung abgelaufen.</translation>
    </message>
    <message>
        <source>Signal 28: SIGWINCH</source>
        <translation>Signal 28: SIGWINCH</translation>
    </message>
    <message>
        <source>Window resize signal.</source>
        <translation>Fenstergröße geändert.</translation>
    </message>
    <message>
        <source>Signal 29: SIGPOLL</source>
        <translation>Signal 29: SIGPOLL</translation>
    </message>
    <message>
        <source>Pollable event.</source>
        <translation>Abfragbares Ereignis.</translation>
    </message>
    <message>
        <source>Signal 30: SIGPWR</source>
        <translation>Signal 30: SIGPWR</translation>
    </message>
    <message>
        <source>Power failure.</source>
        <translation>Ausfall der Stromversorgung.</translation>
    </message>
    <message>
        <source>Signal 31: SIGSYS</source>
        <translation>Signal 31: SIGSYS</translation>
    </message>
    <message>
        <source>Bad argument to routine.</source>
        <translation>Falsches Argument für eine Routine.</translation>
    </message>
    <message>
        <source>Signal 32: SIGRTMIN</source>
        <translation>Signal 32: SIGRTMIN</translation>
    </message>
    <message>
        <source>Real-time 0.</source>
        <translation>Echtzeitsignal 0.</translation>
    </message>
    <message>
        <source>Signal 64: SIGRTMAX</source>
        <translation>Signal 64: SIGRTMAX</translation>
    </message>
    <message>
        <source>Real-time 31 (Max).</source>
        <translation>Echtzeitsignal 31 (höchstes).</translation>
    </message>
    <message>
        <source>Signal %1: SIGRTMIN+%2</source>
        <translation>Signal %1: SIGRTMIN+%2</translation>
    </message>
    <message>
        <source>Real-time %1.</source>
        <translation>Echtzeitsignal %1.</translation>
    </message>
</context>
<context>
    <name>CNetworkSettingsCheck</name>
    <message>
        <source>&apos;%1&apos; is none of %2.</source>
        <translation>&apos;%1&apos; gehört nicht zu %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 address, such as 192.168.1.10.</source>
        <translation>&apos;%1&apos; ist keine IPv4-Adresse, wie etwa 192.168.1.10.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no subnet mask, such as 255.255.255.0.</source>
        <translation>&apos;%1&apos; ist keine Subnetzmaske, wie etwa 255.255.255.0.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no port number, 1 to 65535.</source>
        <translation>&apos;%1&apos; ist keine Portnummer von 1 bis 65535.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kernel log level, 0 to 7.</source>
        <translation>&apos;%1&apos; ist keine Protokollstufe des Kernels von 0 bis 7.</translation>
    </message>
    <message>
        <source>A section begins: no key in it is read.</source>
        <translation>Hier beginnt ein Abschnitt: Kein Schlüssel darin wird gelesen.</translation>
    </message>
    <message>
        <source>This is neither KEY=value nor a comment.</source>
        <translation>Dies ist weder KEY=Wert noch ein Kommentar.</translation>
    </message>
    <message>
        <source>There is no such key.</source>
        <translation>Diesen Schlüssel gibt es nicht.</translation>
    </message>
    <message>
        <source>This line is not read: it belongs to a quotation mark or backslash before it.</source>
        <translation>Diese Zeile wird nicht gelesen: Sie gehört zu einem Anführungszeichen oder Rückstrich davor.</translation>
    </message>
    <message>
        <source>This replaces what line %1 tells.</source>
        <translation>Dies ersetzt die Angabe in Zeile %1.</translation>
    </message>
    <message>
        <source>The mode STATIC needs an address.</source>
        <translation>Die Betriebsart STATIC braucht eine Adresse.</translation>
    </message>
    <message>
        <source>The gateway %1 is not in the subnet of the address %2, mask %3.</source>
        <translation>Das Gateway %1 liegt nicht im Subnetz der Adresse %2, Maske %3.</translation>
    </message>
</context>
<context>
    <name>COptionModuleFileName</name>
    <message>
        <source>Option Modul slot %1</source>
        <translation>Steckplatz %1 für Optionsmodule</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Analog interface</source>
        <translation>Analogschnittstelle</translation>
    </message>
    <message>
        <source>Expansion IO modul</source>
        <translation>E/A-Erweiterungsmodul</translation>
    </message>
    <message>
        <source>EtherCAT</source>
        <translation>EtherCAT</translation>
    </message>
    <message>
        <source>CAN-Bus</source>
        <translation>CAN-Bus</translation>
    </message>
    <message>
        <source>Unknown interface</source>
        <translation>Unbekannte Schnittstelle</translation>
    </message>
</context>
<context>
    <name>CXmlAbstractVornFile</name>
    <message>
        <source>This is no valid UTF-16 text.</source>
        <translation>Dies ist kein gültiger UTF-16-Text.</translation>
    </message>
    <message>
        <source>The document holds no element.</source>
        <translation>Das Dokument enthält kein Element.</translation>
    </message>
    <message>
        <source>The document ends before the element &apos;%1&apos; is closed.</source>
        <translation>Das Dokument endet, bevor das Element &apos;%1&apos; geschlossen ist.</translation>
    </message>
    <message>
        <source>This character cannot stand here.</source>
        <translation>Dieses Zeichen darf hier nicht stehen.</translation>
    </message>
    <message>
        <source>What begins here is not closed before the document ends.</source>
        <translation>Was hier beginnt, ist bis zum Ende des Dokuments nicht geschlossen.</translation>
    </message>
    <message>
        <source>The CDATA section is not closed.</source>
        <translation>Der CDATA-Abschnitt ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The document ends within a character.</source>
        <translation>Das Dokument endet mitten in einem Zeichen.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; must be closed first.</source>
        <translation>Zuerst muss das Element &apos;%1&apos; geschlossen werden.</translation>
    </message>
    <message>
        <source>The element has two attributes of this name.</source>
        <translation>Das Element hat zwei Attribute dieses Namens.</translation>
    </message>
    <message>
        <source>There is something behind the root element.</source>
        <translation>Hinter dem Wurzelelement steht noch etwas.</translation>
    </message>
    <message>
        <source>The entity is not declared.</source>
        <translation>Die Entität ist nicht deklariert.</translation>
    </message>
    <message>
        <source>The reference is to a character that XML cannot carry.</source>
        <translation>Die Referenz bezeichnet ein Zeichen, das in XML nicht stehen kann.</translation>
    </message>
    <message>
        <source>The XML declaration must stand at the very beginning.</source>
        <translation>Die XML-Deklaration muss ganz am Anfang stehen.</translation>
    </message>
    <message>
        <source>The encoding is not known.</source>
        <translation>Die Zeichenkodierung ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The document is not in the encoding that it declares.</source>
        <translation>Das Dokument hat nicht die Zeichenkodierung, die es angibt.</translation>
    </message>
    <message>
        <source>The XML declaration is not well-formed.</source>
        <translation>Die XML-Deklaration ist nicht wohlgeformt.</translation>
    </message>
    <message>
        <source>The XML version &apos;%1&apos; is not known.</source>
        <translation>Die XML-Version &apos;%1&apos; ist nicht bekannt.</translation>
    </message>
    <message>
        <source>A document type declaration with declarations of its own is not allowed.</source>
        <translation>Eine Dokumenttyp-Deklaration mit eigenen Deklarationen ist nicht erlaubt.</translation>
    </message>
    <message>
        <source>The entity &apos;%1&apos; is not declared.</source>
        <translation>Die Entität &apos;%1&apos; ist nicht deklariert.</translation>
    </message>
    <message>
        <source>A name has more than %1 characters.</source>
        <translation>Ein Name hat mehr als %1 Zeichen.</translation>
    </message>
    <message>
        <source>Elements are nested more than %1 deep.</source>
        <translation>Elemente sind mehr als %1 Ebenen tief verschachtelt.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has more than %2 attributes.</source>
        <translation>Das Element &apos;%1&apos; hat mehr als %2 Attribute.</translation>
    </message>
    <message>
        <source>The document has more than %1 nodes.</source>
        <translation>Das Dokument hat mehr als %1 Knoten.</translation>
    </message>
    <message>
        <source>The file would be larger than %1 bytes.</source>
        <translation>Die Datei würde größer als %1 Bytes.</translation>
    </message>
    <message>
        <source>A comment holds &apos;--&apos; or ends in &apos;-&apos;, which XML cannot carry.</source>
        <translation>Ein Kommentar enthält &apos;--&apos; oder endet mit &apos;-&apos;, was in XML nicht stehen kann.</translation>
    </message>
    <message>
        <source>A processing instruction holds &apos;?&gt;&apos;, which XML cannot carry.</source>
        <translation>Eine Verarbeitungsanweisung enthält &apos;?&gt;&apos;, was in XML nicht stehen kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of an element or attribute.</source>
        <translation>&apos;%1&apos; kann nicht der Name eines Elements oder Attributs sein.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; holds the character U+%2, which XML cannot carry.</source>
        <translation>Das Element &apos;%1&apos; enthält das Zeichen U+%2, das in XML nicht stehen kann.</translation>
    </message>
    <message>
        <source>The document type is &apos;%1&apos;, but &apos;%2&apos; is required.</source>
        <translation>Der Dokumenttyp ist &apos;%1&apos;, verlangt ist aber &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The version is &apos;%1&apos;, but &apos;%2&apos; is required.</source>
        <translation>Die Version ist &apos;%1&apos;, verlangt ist aber &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>There is no document to save.</source>
        <translation>Es gibt kein Dokument, das gesichert werden könnte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be a document type.</source>
        <translation>&apos;%1&apos; kann kein Dokumenttyp sein.</translation>
    </message>
    <message>
        <source>There is not enough memory for the document.</source>
        <translation>Der Speicher reicht für das Dokument nicht aus.</translation>
    </message>
</context>
<context>
    <name>FileStorage</name>
    <message>
        <source>This is no regular file.</source>
        <translation>Dies ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>%1; the new content is in place, but a power cut may undo it</source>
        <translation>%1; der neue Inhalt steht in der Datei, aber ein Stromausfall kann ihn rückgängig machen</translation>
    </message>
    <message>
        <source>It is larger than %1 bytes.</source>
        <translation>Sie ist größer als %1 Bytes.</translation>
    </message>
</context>
</TS>
