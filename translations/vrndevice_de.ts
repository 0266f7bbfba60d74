<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>vrndevice</name>
    <message>
        <source>Also look for the files of the configuration in this directory.</source>
        <translation>Auch die Dateien der Konfiguration in diesem Verzeichnis suchen.</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Diese Hilfe ausgeben.</translation>
    </message>
    <message>
        <source>Print JSON instead of text.</source>
        <translation>JSON statt Text ausgeben.</translation>
    </message>
    <message>
        <source>options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;.</source>
        <translation>Es gibt keine Option &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation>Es gibt keine Option &apos;%1&apos;. Meinten Sie &apos;%2&apos;?</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 hat keinen Wert.</translation>
    </message>
    <message>
        <source>The value of %1 is missing.</source>
        <translation>Der Wert von %1 fehlt.</translation>
    </message>
    <message>
        <source>%1 must be %2.</source>
        <translation>%1 muss %2 sein.</translation>
    </message>
    <message>
        <source>The argument %1 is missing.</source>
        <translation>Das Argument %1 fehlt.</translation>
    </message>
    <message>
        <source>The argument &apos;%1&apos; is one too many.</source>
        <translation>Das Argument &apos;%1&apos; ist zu viel.</translation>
    </message>
    <message>
        <source>%1: %2 Try &apos;vrndevice %1 --help&apos;.</source>
        <translation>%1: %2 Siehe &apos;vrndevice %1 --help&apos;.</translation>
    </message>
    <message>
        <source>--json cannot be had together with the document on standard output.</source>
        <translation>--json geht nicht zusammen mit dem Dokument auf der Standardausgabe.</translation>
    </message>
    <message>
        <source>FPGA images, the active one first</source>
        <translation>FPGA-Abbilder, das aktive zuerst</translation>
    </message>
    <message>
        <source>OPC UA, enabled</source>
        <translation>OPC UA, eingeschaltet</translation>
    </message>
    <message>
        <source>OPC UA, disabled</source>
        <translation>OPC UA, ausgeschaltet</translation>
    </message>
    <message>
        <source>Device %1, class %2</source>
        <translation>Gerät %1, Klasse %2</translation>
    </message>
    <message>
        <source>Configuration %1</source>
        <translation>Konfiguration %1</translation>
    </message>
    <message>
        <source>Reads, checks and changes configurations of servo drives and motion controllers, and the files that the devices keep.</source>
        <translation>Liest, prüft und ändert Konfigurationen von Servoantrieben und Bewegungssteuerungen sowie die Dateien, die die Geräte selbst führen.</translation>
    </message>
    <message>
        <source>Print this help; behind a command, the command&apos;s.</source>
        <translation>Diese Hilfe ausgeben; hinter einem Befehl die des Befehls.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Die Version ausgeben.</translation>
    </message>
    <message>
        <source>done</source>
        <translation>erledigt</translation>
    </message>
    <message>
        <source>not done, findings or differences</source>
        <translation>nicht erledigt, Befunde oder Unterschiede</translation>
    </message>
    <message>
        <source>bad usage</source>
        <translation>falscher Aufruf</translation>
    </message>
    <message>
        <source>unreadable input</source>
        <translation>nicht lesbare Eingabe</translation>
    </message>
    <message>
        <source>Usage: vrndevice COMMAND [ARGUMENTS]</source>
        <translation>Aufruf: vrndevice BEFEHL [ARGUMENTE]</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Exit codes: %1.</source>
        <translation>Rückgabewerte: %1.</translation>
    </message>
    <message>
        <source>Usage: vrndevice %1 COMMAND [ARGUMENTS]</source>
        <translation>Aufruf: vrndevice %1 BEFEHL [ARGUMENTE]</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumente:</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>%1: The configuration has no device.</source>
        <translation>%1: Die Konfiguration enthält kein Gerät.</translation>
    </message>
    <message>
        <source>%1: The file could not be saved: %2</source>
        <translation>%1: Die Datei konnte nicht gesichert werden: %2</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Auf die Standardausgabe kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Drive %1</source>
        <translation>Antrieb %1</translation>
    </message>
    <message>
        <source>The configuration to change.</source>
        <translation>Die Konfiguration, die geändert werden soll.</translation>
    </message>
    <message>
        <source>Series of the drive.</source>
        <translation>Baureihe des Antriebs.</translation>
    </message>
    <message>
        <source>Name of the drive; by default made from its drive number.</source>
        <translation>Name des Antriebs; ohne Angabe aus seiner Antriebsnummer gebildet.</translation>
    </message>
    <message>
        <source>Drive number 0 to 254; by default the next free one.</source>
        <translation>Antriebsnummer von 0 bis 254; ohne Angabe die nächste freie.</translation>
    </message>
    <message>
        <source>--type must be KD2_drive or KD3_drive.</source>
        <translation>--type muss KD2_drive oder KD3_drive sein.</translation>
    </message>
    <message>
        <source>--id must be a number from 0 to 254.</source>
        <translation>--id muss eine Zahl von 0 bis 254 sein.</translation>
    </message>
    <message>
        <source>%1: The drive number %2 is in use.</source>
        <translation>%1: Die Antriebsnummer %2 ist belegt.</translation>
    </message>
    <message>
        <source>Added drive %1: %2, %3</source>
        <translation>Antrieb %1 hinzugefügt: %2, %3</translation>
    </message>
    <message>
        <source>Add a drive to the device.</source>
        <translation>Einen Antrieb zum Gerät hinzufügen.</translation>
    </message>
    <message>
        <source>The configuration to change; - filters standard input.</source>
        <translation>Die Konfiguration, die geändert werden soll; - filtert die Standardeingabe.</translation>
    </message>
    <message>
        <source>The entry to add, as drive[3] or files[a.xml]. Pairs of a path and a value may follow, which are then set; all of it is done, or nothing.</source>
        <translation>Das Listenelement, das hinzugefügt werden soll, wie drive[3] oder files[a.xml]. Paare aus Pfad und Wert dürfen folgen, die dann gesetzt werden; alles davon geschieht oder nichts.</translation>
    </message>
    <message>
        <source>Each path needs a value.</source>
        <translation>Jeder Pfad braucht einen Wert.</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>Add an entry to a list: a drive, a file, a plug-in, an option.</source>
        <translation>Einer Liste etwas hinzufügen: einen Antrieb, eine Datei, ein Plug-in, eine Option.</translation>
    </message>
    <message>
        <source>The changes to make, as &apos;diff --json&apos; prints them; - is standard input.</source>
        <translation>Die Änderungen, wie &apos;diff --json&apos; sie ausgibt; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The configuration to change; - is standard input.</source>
        <translation>Die Konfiguration, die geändert werden soll; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Only tell whether the changes can be made.</source>
        <translation>Nur sagen, ob die Änderungen möglich sind.</translation>
    </message>
    <message>
        <source>Save the changed configuration as another file; - is standard output.</source>
        <translation>Die geänderte Konfiguration als andere Datei sichern; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Only one of the two can be standard input.</source>
        <translation>Nur eine von beiden kann die Standardeingabe sein.</translation>
    </message>
    <message>
        <source>With --check nothing is saved: --output makes no sense.</source>
        <translation>Mit --check wird nichts gesichert: --output hat keinen Sinn.</translation>
    </message>
    <message>
        <source>Both the configuration and --json would be printed.</source>
        <translation>Sowohl die Konfiguration als auch --json würden ausgegeben.</translation>
    </message>
    <message>
        <source>Make the changes that &apos;diff --json&apos; told in a configuration.</source>
        <translation>Die Änderungen, die &apos;diff --json&apos; nennt, in einer Konfiguration vornehmen.</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1, %2 in 1 file</source>
        <translation>%1, %2 in 1 Datei</translation>
    </message>
    <message>
        <source>%1, %2 in %3 files</source>
        <translation>%1, %2 in %3 Dateien</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>item:</source>
        <translation>Eintrag:</translation>
    </message>
    <message>
        <source>found:</source>
        <translation>gefunden:</translation>
    </message>
    <message>
        <source>expected:</source>
        <translation>erwartet:</translation>
    </message>
    <message>
        <source>hint:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>A configuration to check.</source>
        <translation>Eine Konfiguration, die geprüft werden soll.</translation>
    </message>
    <message>
        <source>Fail for warnings, too.</source>
        <translation>Auch bei Warnungen scheitern.</translation>
    </message>
    <message>
        <source>%1: nothing is wrong</source>
        <translation>%1: alles in Ordnung</translation>
    </message>
    <message>
        <source>Find everything that is wrong with a configuration.</source>
        <translation>Alles finden, was an einer Konfiguration falsch ist.</translation>
    </message>
    <message>
        <source>Commands: %1</source>
        <translation>Befehle: %1</translation>
    </message>
    <message>
        <source>The shell: %1.</source>
        <translation>Die Shell: %1.</translation>
    </message>
    <message>
        <source>Print a script by which a shell completes command lines.</source>
        <translation>Ein Skript ausgeben, mit dem eine Shell Befehlszeilen ergänzt.</translation>
    </message>
    <message>
        <source>The configuration to start from; - is standard input.</source>
        <translation>Die Konfiguration, von der ausgegangen wird; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The configuration to compare with it; - is standard input.</source>
        <translation>Die Konfiguration, die damit verglichen wird; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Tell what differs between two configurations.</source>
        <translation>Die Unterschiede zwischen zwei Konfigurationen nennen.</translation>
    </message>
    <message>
        <source>The configurations to format; - filters standard input.</source>
        <translation>Die Konfigurationen, die formatiert werden sollen; - filtert die Standardeingabe.</translation>
    </message>
    <message>
        <source>Write nothing, but list the files that would change, and end with 1 when there are any.</source>
        <translation>Nichts schreiben, sondern die Dateien auflisten, die sich ändern würden, und mit 1 enden, wenn es welche gibt.</translation>
    </message>
    <message>
        <source>Standard output takes one document, without other files and --json.</source>
        <translation>Die Standardausgabe nimmt ein Dokument auf, ohne andere Dateien und --json.</translation>
    </message>
    <message>
        <source>%1: rewritten</source>
        <translation>%1: neu geschrieben</translation>
    </message>
    <message>
        <source>%1: would change</source>
        <translation>%1: würde sich ändern</translation>
    </message>
    <message>
        <source>Rewrite configurations in the form in which they are saved.</source>
        <translation>Konfigurationen in die Form bringen, in der sie gesichert werden.</translation>
    </message>
    <message>
        <source>The configuration to read.</source>
        <translation>Die Konfiguration, die gelesen werden soll.</translation>
    </message>
    <message>
        <source>What to print: one item, or whatever items have in common, as device, files or drive[0]; by default everything.</source>
        <translation>Was ausgegeben werden soll: ein Eintrag oder was Einträge gemeinsam haben, wie device, files oder drive[0]; ohne Angabe alles.</translation>
    </message>
    <message>
        <source>Print items of a configuration.</source>
        <translation>Einträge einer Konfiguration ausgeben.</translation>
    </message>
    <message>
        <source>The languages in which messages are wanted, the preferred one first, separated by colons; it counts unless the locale is C.</source>
        <translation>Die gewünschten Sprachen der Meldungen, die bevorzugte zuerst, durch Doppelpunkte getrennt; gilt nicht, wenn die Locale C ist.</translation>
    </message>
    <message>
        <source>The locale: the first of them that is set. In a language for which there is no catalogue, and in the locale C, all texts are English. Numbers and dates are the same in every locale.</source>
        <translation>Die Locale: die erste gesetzte von ihnen. In einer Sprache, für die es keinen Katalog gibt, und in der Locale C sind alle Texte englisch. Zahlen und Datumsangaben sind in jeder Locale gleich.</translation>
    </message>
    <message>
        <source>If it is set and not empty, nothing is printed in colour.</source>
        <translation>Ist sie gesetzt und nicht leer, wird nichts farbig ausgegeben.</translation>
    </message>
    <message>
        <source>A configuration: the device, its drives and plug-ins, and all files that belong to it.</source>
        <translation>Eine Konfiguration: das Gerät, seine Antriebe und Plug-ins und alle Dateien, die dazugehören.</translation>
    </message>
    <message>
        <source>The names that a device and its drives were given.</source>
        <translation>Die Namen, die ein Gerät und seine Antriebe bekommen haben.</translation>
    </message>
    <message>
        <source>The Ethernet settings of a device.</source>
        <translation>Die Ethernet-Einstellungen eines Geräts.</translation>
    </message>
    <message>
        <source>What the operating system of a device is made of.</source>
        <translation>Woraus das Betriebssystem eines Geräts besteht.</translation>
    </message>
    <message>
        <source>The catalogues of translated texts, as seen from the program.</source>
        <translation>Die Kataloge mit den übersetzten Texten, vom Programm aus gesehen.</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Dienstprogramme</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>configurations of servo drives and motion controllers</source>
        <translation>Konfigurationen von Servoantrieben und Bewegungssteuerungen</translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Results go to standard output, diagnostics to standard error. Programs should ask for --json: nothing in it but sentences depends on the language.</source>
        <translation>Ergebnisse gehen auf die Standardausgabe, Meldungen auf die Standardfehlerausgabe. Programme sollten --json verlangen: Darin hängen nur Sätze von der Sprache ab.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Exit status</source>
        <translation>Rückgabewert</translation>
    </message>
    <message>
        <source>Environment</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>A new configuration with two drives, and a look at it:</source>
        <translation>Eine neue Konfiguration mit zwei Antrieben und ein Blick darauf:</translation>
    </message>
    <message>
        <source>A fixed address, and a check of what the device will read:</source>
        <translation>Eine feste Adresse und eine Prüfung dessen, was das Gerät lesen wird:</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Siehe auch</translation>
    </message>
    <message>
        <source>Print the manual page, as man(1) reads it.</source>
        <translation>Die Handbuchseite ausgeben, wie man(1) sie liest.</translation>
    </message>
    <message>
        <source>The configuration that both sides started from.</source>
        <translation>Die Konfiguration, von der beide Seiten ausgegangen sind.</translation>
    </message>
    <message>
        <source>What one side made of it; the result replaces it.</source>
        <translation>Was die eine Seite daraus gemacht hat; das Ergebnis ersetzt sie.</translation>
    </message>
    <message>
        <source>What the other side made of it.</source>
        <translation>Was die andere Seite daraus gemacht hat.</translation>
    </message>
    <message>
        <source>Save the result as another file; - is standard output.</source>
        <translation>Das Ergebnis als andere Datei sichern; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Only one of the three can be standard input.</source>
        <translation>Nur eine von den dreien kann die Standardeingabe sein.</translation>
    </message>
    <message>
        <source>conflict: %1</source>
        <translation>Konflikt: %1</translation>
    </message>
    <message>
        <source>Bring together what two people changed in a configuration.</source>
        <translation>Zusammenführen, was zwei Personen an einer Konfiguration geändert haben.</translation>
    </message>
    <message>
        <source>Code of a system message, 1024 to 1151 (0x400 to 0x47f).</source>
        <translation>Code einer Systemmeldung, 1024 bis 1151 (0x400 bis 0x47f).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no code.</source>
        <translation>&apos;%1&apos; ist kein Code.</translation>
    </message>
    <message>
        <source>%1 is no system message: they are 1024 to 1151.</source>
        <translation>%1 ist keine Systemmeldung: Es gibt 1024 bis 1151.</translation>
    </message>
    <message>
        <source>Tell what system messages of a device mean.</source>
        <translation>Die Bedeutung von Systemmeldungen eines Geräts nennen.</translation>
    </message>
    <message>
        <source>The slot is missing: OM and a number, such as OM1.</source>
        <translation>Der Steckplatz fehlt: OM und eine Zahl, wie etwa OM1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no slot: OM and a number, such as OM1.</source>
        <translation>&apos;%1&apos; ist kein Steckplatz: OM und eine Zahl, wie etwa OM1.</translation>
    </message>
    <message>
        <source>The interface is missing: two letters or more, such as EC.</source>
        <translation>Die Schnittstelle fehlt: zwei Buchstaben oder mehr, wie etwa EC.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no interface: two letters or more, such as EC.</source>
        <translation>&apos;%1&apos; ist keine Schnittstelle: zwei Buchstaben oder mehr, wie etwa EC.</translation>
    </message>
    <message>
        <source>The hardware version is missing: H and a number, such as H2.</source>
        <translation>Die Hardwareversion fehlt: H und eine Zahl, wie etwa H2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no hardware version: H and a number, such as H2.</source>
        <translation>&apos;%1&apos; ist keine Hardwareversion: H und eine Zahl, wie etwa H2.</translation>
    </message>
    <message>
        <source>The software version is missing: V and two numbers, such as V1_3.</source>
        <translation>Die Softwareversion fehlt: V und zwei Zahlen, wie etwa V1_3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no software version: V and two numbers, such as V1_3.</source>
        <translation>&apos;%1&apos; ist keine Softwareversion: V und zwei Zahlen, wie etwa V1_3.</translation>
    </message>
    <message>
        <source>The suffix is missing, such as .%1.</source>
        <translation>Die Dateiendung fehlt, wie etwa .%1.</translation>
    </message>
    <message>
        <source>Behind the versions there may be &apos;_&apos; and a text, and then &apos;.&apos; and a suffix, both of letters, digits and &apos;_&apos;.</source>
        <translation>Hinter den Versionen dürfen &apos;_&apos; und ein Text stehen, danach &apos;.&apos; und eine Dateiendung, beide aus Buchstaben, Ziffern und &apos;_&apos;.</translation>
    </message>
    <message>
        <source>File name of option-module firmware, also with directories; the file need not be there.</source>
        <translation>Dateiname einer Firmware für Optionsmodule, auch mit Verzeichnissen; die Datei muss nicht vorhanden sein.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation>STECKPLATZ</translation>
    </message>
    <message>
        <source>INTERFACE</source>
        <translation>SCHNITTSTELLE</translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation>HARDWARE</translation>
    </message>
    <message>
        <source>SOFTWARE</source>
        <translation>SOFTWARE</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXT</translation>
    </message>
    <message>
        <source>Tell what a firmware file for an option module is for.</source>
        <translation>Nennen, wofür eine Firmwaredatei für Optionsmodule bestimmt ist.</translation>
    </message>
    <message>
        <source>The network.conf to check.</source>
        <translation>Die network.conf, die geprüft werden soll.</translation>
    </message>
    <message>
        <source>Find what is wrong with a network.conf.</source>
        <translation>Fehler in einer network.conf finden.</translation>
    </message>
    <message>
        <source>%1: These lines would be lost. Correct or remove them first.</source>
        <translation>%1: Diese Zeilen gingen verloren. Berichtigen oder entfernen Sie sie zuerst.</translation>
    </message>
    <message>
        <source>The network.conf to change.</source>
        <translation>Die network.conf, die geändert werden soll.</translation>
    </message>
    <message>
        <source>A key of the file and its new value.</source>
        <translation>Ein Schlüssel der Datei und sein neuer Wert.</translation>
    </message>
    <message>
        <source>Start from the defaults if there is no such file.</source>
        <translation>Von den Vorgabewerten ausgehen, wenn es die Datei nicht gibt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not KEY=VALUE.</source>
        <translation>&apos;%1&apos; ist nicht KEY=VALUE.</translation>
    </message>
    <message>
        <source>Change Ethernet settings in a network.conf.</source>
        <translation>Ethernet-Einstellungen in einer network.conf ändern.</translation>
    </message>
    <message>
        <source>The network.conf to show.</source>
        <translation>Die network.conf, die gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Show the Ethernet settings that a device reads from a file.</source>
        <translation>Die Ethernet-Einstellungen zeigen, die ein Gerät aus einer Datei liest.</translation>
    </message>
    <message>
        <source>A KC2 controller with one KD2 drive</source>
        <translation>Eine KC2-Steuerung mit einem KD2-Antrieb</translation>
    </message>
    <message>
        <source>A single KD3 drive</source>
        <translation>Ein einzelner KD3-Antrieb</translation>
    </message>
    <message>
        <source>A KD3 controller with two KD3 drives and an EtherCAT master plug-in</source>
        <translation>Eine KD3-Steuerung mit zwei KD3-Antrieben und einem Plug-in als EtherCAT-Master</translation>
    </message>
    <message>
        <source>There is no template &apos;%1&apos;, and no such file. Built in are: %2.</source>
        <translation>Es gibt keine Vorlage &apos;%1&apos; und keine solche Datei. Eingebaut sind: %2.</translation>
    </message>
    <message>
        <source>The template %1 is for the class &apos;%2&apos;, not for %3.</source>
        <translation>Die Vorlage %1 ist für die Klasse &apos;%2&apos;, nicht für %3.</translation>
    </message>
    <message>
        <source>The configuration to create; - prints it. Needed except for --list-templates.</source>
        <translation>Die Konfiguration, die angelegt werden soll; - gibt sie aus. Nötig, außer bei --list-templates.</translation>
    </message>
    <message>
        <source>Class of the device: kc2 or kd3. Not needed with a template.</source>
        <translation>Klasse des Geräts: kc2 oder kd3. Mit einer Vorlage nicht nötig.</translation>
    </message>
    <message>
        <source>Name of the device.</source>
        <translation>Name des Geräts.</translation>
    </message>
    <message>
        <source>What to begin with: the name of a built-in template, or the file of a configuration.</source>
        <translation>Womit begonnen wird: der Name einer eingebauten Vorlage oder die Datei einer Konfiguration.</translation>
    </message>
    <message>
        <source>Print the built-in templates.</source>
        <translation>Die eingebauten Vorlagen ausgeben.</translation>
    </message>
    <message>
        <source>FILE is missing.</source>
        <translation>FILE fehlt.</translation>
    </message>
    <message>
        <source>--class must be kc2 or kd3.</source>
        <translation>--class muss kc2 oder kd3 sein.</translation>
    </message>
    <message>
        <source>--name is missing.</source>
        <translation>--name fehlt.</translation>
    </message>
    <message>
        <source>%1 exists already and is left as it is.</source>
        <translation>%1 gibt es schon und bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Created %1: device %2</source>
        <translation>%1 angelegt: Gerät %2</translation>
    </message>
    <message>
        <source>Create a configuration with one device.</source>
        <translation>Eine Konfiguration mit einem Gerät anlegen.</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>Plattform</translation>
    </message>
    <message>
        <source>Board support</source>
        <translation>Board-Unterstützung</translation>
    </message>
    <message>
        <source>Built</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Toolchain</source>
        <translation>Werkzeugkette</translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <source>The os-release to show.</source>
        <translation>Die os-release, die gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Show what the operating system of a device is made of.</source>
        <translation>Zeigen, woraus das Betriebssystem eines Geräts besteht.</translation>
    </message>
    <message>
        <source>parameter values</source>
        <translation>Parameterwerte</translation>
    </message>
    <message>
        <source>parameter definition</source>
        <translation>Parameterdefinition</translation>
    </message>
    <message>
        <source>object dictionary</source>
        <translation>Objektverzeichnis</translation>
    </message>
    <message>
        <source>fault texts</source>
        <translation>Fehlertexte</translation>
    </message>
    <message>
        <source>additional file</source>
        <translation>zusätzliche Datei</translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>FPGA image</source>
        <translation>FPGA-Abbild</translation>
    </message>
    <message>
        <source>OPC UA model</source>
        <translation>OPC-UA-Modell</translation>
    </message>
    <message>
        <source>EtherCAT master</source>
        <translation>EtherCAT-Master</translation>
    </message>
    <message>
        <source>drive parameters</source>
        <translation>Antriebsparameter</translation>
    </message>
    <message>
        <source>KD2 firmware</source>
        <translation>KD2-Firmware</translation>
    </message>
    <message>
        <source>KD2 logic</source>
        <translation>KD2-Logik</translation>
    </message>
    <message>
        <source>KD2 parameters</source>
        <translation>KD2-Parameter</translation>
    </message>
    <message>
        <source>configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>KIND</source>
        <translation>ART</translation>
    </message>
    <message>
        <source>ON THE DEVICE</source>
        <translation>AUF DEM GERÄT</translation>
    </message>
    <message>
        <source>IN THE PROJECT</source>
        <translation>IM PROJEKT</translation>
    </message>
    <message>
        <source>List every file with its directories on the device and in the project.</source>
        <translation>Jede Datei mit ihren Verzeichnissen auf dem Gerät und im Projekt auflisten.</translation>
    </message>
    <message>
        <source>What to remove: entries of lists, single files, items. All of them are removed, or none.</source>
        <translation>Was entfernt werden soll: Elemente von Listen, einzelne Dateien, Einträge. Alle werden entfernt oder keiner.</translation>
    </message>
    <message>
        <source>Removed %1</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>Remove entries, files or items of a configuration.</source>
        <translation>Listenelemente, Dateien oder Einträge einer Konfiguration entfernen.</translation>
    </message>
    <message>
        <source>The configuration to report on. What is wrong with it stands in the page and does not make the command fail.</source>
        <translation>Die Konfiguration, über die berichtet wird. Was an ihr falsch ist, steht auf der Seite und lässt den Befehl nicht scheitern.</translation>
    </message>
    <message>
        <source>Where to write the page; standard output by default.</source>
        <translation>Wohin die Seite geschrieben wird; ohne Angabe auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>--output names no file.</source>
        <translation>--output nennt keine Datei.</translation>
    </message>
    <message>
        <source>--json needs --output with the name of a file.</source>
        <translation>--json braucht --output mit dem Namen einer Datei.</translation>
    </message>
    <message>
        <source>The page would overwrite the configuration.</source>
        <translation>Die Seite würde die Konfiguration überschreiben.</translation>
    </message>
    <message>
        <source>Wrote %1. Errors: %2, warnings: %3.</source>
        <translation>%1 geschrieben. Fehler: %2, Warnungen: %3.</translation>
    </message>
    <message>
        <source>Make a page that shows a configuration and what is wrong.</source>
        <translation>Eine Seite erzeugen, die eine Konfiguration und ihre Fehler zeigt.</translation>
    </message>
    <message>
        <source>List the rules by which check judges.</source>
        <translation>Die Regeln auflisten, nach denen check urteilt.</translation>
    </message>
    <message>
        <source>The item to set.</source>
        <translation>Der Eintrag, der gesetzt werden soll.</translation>
    </message>
    <message>
        <source>Its new value. More pairs of PATH and VALUE may follow; all are set, or none. Before a value that begins with a hyphen, -- must stand.</source>
        <translation>Sein neuer Wert. Weitere Paare aus PATH und VALUE dürfen folgen; alle werden gesetzt oder keines. Vor einem Wert, der mit einem Bindestrich beginnt, muss -- stehen.</translation>
    </message>
    <message>
        <source>Set items of a configuration and leave the rest as it is.</source>
        <translation>Einträge einer Konfiguration setzen und den Rest lassen, wie er ist.</translation>
    </message>
    <message>
        <source>The settings document to change.</source>
        <translation>Die Einstellungsdatei, die geändert werden soll.</translation>
    </message>
    <message>
        <source>Name of the drive with that number, 0 to 254; may be repeated.</source>
        <translation>Name des Antriebs mit dieser Nummer, 0 bis 254; darf mehrfach stehen.</translation>
    </message>
    <message>
        <source>Start a new document if there is no such file.</source>
        <translation>Eine neue Datei beginnen, wenn es sie nicht gibt.</translation>
    </message>
    <message>
        <source>--drive must be a number from 0 to 254, &apos;=&apos; and a name.</source>
        <translation>--drive muss eine Zahl von 0 bis 254, &apos;=&apos; und ein Name sein.</translation>
    </message>
    <message>
        <source>Neither --name nor --drive is given.</source>
        <translation>Weder --name noch --drive ist angegeben.</translation>
    </message>
    <message>
        <source>Name a device and its drives.</source>
        <translation>Ein Gerät und seine Antriebe benennen.</translation>
    </message>
    <message>
        <source>The settings document to show.</source>
        <translation>Die Einstellungsdatei, die gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Show the names that a device was given.</source>
        <translation>Die Namen zeigen, die ein Gerät bekommen hat.</translation>
    </message>
    <message>
        <source>The configuration to show.</source>
        <translation>Die Konfiguration, die gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Show a configuration as a tree.</source>
        <translation>Eine Konfiguration als Baum zeigen.</translation>
    </message>
    <message>
        <source>This is no configuration.</source>
        <translation>Dies ist keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1 is there already, and is no manifest: %2</source>
        <translation>%1 ist schon da und kein Manifest: %2</translation>
    </message>
    <message>
        <source>Staged %1 files with %2 bytes; sum of the manifest: %3</source>
        <translation>%1 Dateien mit %2 Bytes bereitgestellt; Prüfsumme des Manifests: %3</translation>
    </message>
    <message>
        <source>The configuration to stage.</source>
        <translation>Die Konfiguration, die bereitgestellt werden soll.</translation>
    </message>
    <message>
        <source>The directory that holds the files of the configuration.</source>
        <translation>Das Verzeichnis, in dem die Dateien der Konfiguration liegen.</translation>
    </message>
    <message>
        <source>The directory to make, with all that has to be on the device.</source>
        <translation>Das Verzeichnis, das erzeugt werden soll, mit allem, was auf dem Gerät sein muss.</translation>
    </message>
    <message>
        <source>The archive to make, a .tar.gz file of the same content.</source>
        <translation>Das Archiv, das erzeugt werden soll, eine .tar.gz-Datei desselben Inhalts.</translation>
    </message>
    <message>
        <source>Replace the device tree that ROOT holds already.</source>
        <translation>Den Gerätebaum ersetzen, den ROOT schon enthält.</translation>
    </message>
    <message>
        <source>Keep the manifest in the project, too.</source>
        <translation>Das Manifest auch im Projekt ablegen.</translation>
    </message>
    <message>
        <source>Which project? Give --project DIR.</source>
        <translation>Welches Projekt? Geben Sie --project DIR an.</translation>
    </message>
    <message>
        <source>Nothing to make. Give --to ROOT, --archive OUT, or both.</source>
        <translation>Nichts zu erzeugen. Geben Sie --to ROOT, --archive OUT oder beides an.</translation>
    </message>
    <message>
        <source>Nothing to replace. Give --to ROOT.</source>
        <translation>Nichts zu ersetzen. Geben Sie --to ROOT an.</translation>
    </message>
    <message>
        <source>Staging</source>
        <translation>Bereitstellung</translation>
    </message>
    <message>
        <source>Make the tree of files that goes on the device.</source>
        <translation>Den Dateibaum erzeugen, der auf das Gerät kommt.</translation>
    </message>
    <message>
        <source>device:</source>
        <translation>Gerät:</translation>
    </message>
    <message>
        <source>project:</source>
        <translation>Projekt:</translation>
    </message>
    <message>
        <source>error:</source>
        <translation>Fehler:</translation>
    </message>
    <message>
        <source>warning:</source>
        <translation>Warnung:</translation>
    </message>
    <message>
        <source>(line %1, column %2)</source>
        <translation>(Zeile %1, Spalte %2)</translation>
    </message>
    <message>
        <source>The configuration to show. What is wrong with it stands in the tree and does not make the command fail.</source>
        <translation>Die Konfiguration, die gezeigt werden soll. Was an ihr falsch ist, steht im Baum und lässt den Befehl nicht scheitern.</translation>
    </message>
    <message>
        <source>When to write in colours: always, never, or auto, which is for terminals and unless NO_COLOR is set.</source>
        <translation>Wann farbig geschrieben wird: always, never oder auto, das heißt auf Terminals und wenn NO_COLOR nicht gesetzt ist.</translation>
    </message>
    <message>
        <source>--color must be always, never or auto.</source>
        <translation>--color muss always, never oder auto sein.</translation>
    </message>
    <message>
        <source>Show a configuration as a tree, with every place and what is wrong.</source>
        <translation>Eine Konfiguration als Baum zeigen, mit jedem Ort und allem, was falsch ist.</translation>
    </message>
    <message>
        <source>%1: All %2 files are as the manifest tells.</source>
        <translation>%1: Alle %2 Dateien sind so, wie das Manifest sagt.</translation>
    </message>
    <message>
        <source>A staged directory, or an archive of one.</source>
        <translation>Ein bereitgestelltes Verzeichnis oder ein Archiv davon.</translation>
    </message>
    <message>
        <source>Verifying</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Find what is missing, surplus or changed in a staged tree.</source>
        <translation>Finden, was in einem bereitgestellten Baum fehlt, überzählig oder geändert ist.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;. Try &apos;vrndevice --help&apos;.</source>
        <translation>Es gibt keinen Befehl &apos;%1&apos;. Siehe &apos;vrndevice --help&apos;.</translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation>Es gibt keinen Befehl &apos;%1&apos;. Meinten Sie &apos;%2&apos;?</translation>
    </message>
    <message>
        <source>No command given. Try &apos;vrndevice --help&apos;.</source>
        <translation>Kein Befehl angegeben. Siehe &apos;vrndevice --help&apos;.</translation>
    </message>
    <message>
        <source>Which command of &apos;%1&apos;? Try &apos;vrndevice %1 --help&apos;.</source>
        <translation>Welcher Befehl von &apos;%1&apos;? Siehe &apos;vrndevice %1 --help&apos;.</translation>
    </message>
</context>
</TS>
