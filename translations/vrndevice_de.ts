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
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Unbekannte Option &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation>Unbekannte Option &apos;%1&apos;. Meinten Sie &apos;%2&apos;?</translation>
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
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1: %2 Try &apos;vrndevice %1 --help&apos;.</source>
        <translation>%1: %2 Siehe &apos;vrndevice %1 --help&apos;.</translation>
    </message>
    <message>
        <source>--json cannot be combined with the document on standard output.</source>
        <translation>--json kann nicht mit dem Dokument auf der Standardausgabe kombiniert werden.</translation>
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
        <source>Print this help; after a command, the help of the command.</source>
        <translation>Diese Hilfe ausgeben; nach einem Befehl die Hilfe zu diesem Befehl.</translation>
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
        <source>Cannot write to standard output.</source>
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
        <source>Name of the drive; by default derived from its drive number.</source>
        <translation>Name des Antriebs; ohne Angabe aus seiner Antriebsnummer abgeleitet.</translation>
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
        <source>%1: All drive numbers are in use.</source>
        <translation>%1: Alle Antriebsnummern sind belegt.</translation>
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
        <source>The entry to add, such as drive[3] or files[a.xml]. Pairs of a path and a value may follow, which are then set. Either all changes are made or none.</source>
        <translation>Das Listenelement, das hinzugefügt werden soll, wie drive[3] oder files[a.xml]. Paare aus Pfad und Wert dürfen folgen, die dann gesetzt werden. Entweder werden alle Änderungen vorgenommen oder keine.</translation>
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
        <source>Add an entry to a list: a drive, a file, a plug-in or an option.</source>
        <translation>Einer Liste ein Element hinzufügen: einen Antrieb, eine Datei, ein Plug-in oder eine Option.</translation>
    </message>
    <message>
        <source>The patch to apply, as &apos;diff --json&apos; prints it; - is standard input.</source>
        <translation>Die Änderungsdatei, wie &apos;diff --json&apos; sie ausgibt; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The configuration to change; - is standard input.</source>
        <translation>Die Konfiguration, die geändert werden soll; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Only check whether the patch can be applied.</source>
        <translation>Nur prüfen, ob die Änderungsdatei angewendet werden kann.</translation>
    </message>
    <message>
        <source>Save the changed configuration as another file; - is standard output.</source>
        <translation>Die geänderte Konfiguration als andere Datei sichern; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Only one file can be standard input.</source>
        <translation>Nur eine Datei kann die Standardeingabe sein.</translation>
    </message>
    <message>
        <source>--check saves nothing and cannot be combined with --output.</source>
        <translation>--check sichert nichts und kann nicht mit --output kombiniert werden.</translation>
    </message>
    <message>
        <source>The configuration and --json cannot both be printed to standard output.</source>
        <translation>Die Konfiguration und --json können nicht beide auf der Standardausgabe ausgegeben werden.</translation>
    </message>
    <message>
        <source>Apply a patch written by &apos;diff --json&apos;.</source>
        <translation>Eine Änderungsdatei anwenden, die &apos;diff --json&apos; geschrieben hat.</translation>
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
        <source>Also fail for warnings.</source>
        <translation>Auch bei Warnungen scheitern.</translation>
    </message>
    <message>
        <source>%1: nothing is wrong</source>
        <translation>%1: alles in Ordnung</translation>
    </message>
    <message>
        <source>Report everything that is wrong with a configuration.</source>
        <translation>Alles melden, was an einer Konfiguration falsch ist.</translation>
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
        <source>Print a completion script for a shell.</source>
        <translation>Ein Vervollständigungsskript für eine Shell ausgeben.</translation>
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
        <source>Show the differences between two configurations.</source>
        <translation>Die Unterschiede zwischen zwei Konfigurationen zeigen.</translation>
    </message>
    <message>
        <source>The configurations to format; - filters standard input.</source>
        <translation>Die Konfigurationen, die formatiert werden sollen; - filtert die Standardeingabe.</translation>
    </message>
    <message>
        <source>Write nothing; list the files that would change, and end with 1 if there are any.</source>
        <translation>Nichts schreiben; die Dateien auflisten, die sich ändern würden, und mit 1 enden, wenn es welche gibt.</translation>
    </message>
    <message>
        <source>Standard input cannot be combined with other files or --json.</source>
        <translation>Die Standardeingabe kann nicht mit anderen Dateien oder --json kombiniert werden.</translation>
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
        <source>What to print: one item, or all items of a path such as device, files or drive[0]; by default everything.</source>
        <translation>Was ausgegeben werden soll: ein Eintrag oder alle Einträge eines Pfads wie device, files oder drive[0]; ohne Angabe alles.</translation>
    </message>
    <message>
        <source>Print items of a configuration.</source>
        <translation>Einträge einer Konfiguration ausgeben.</translation>
    </message>
    <message>
        <source>The preferred languages of messages, separated by colons; not used in the locale C.</source>
        <translation>Die bevorzugten Sprachen der Meldungen, durch Doppelpunkte getrennt; nicht verwendet in der Locale C.</translation>
    </message>
    <message>
        <source>The locale: the first variable that is set. In a language without a catalogue and in the locale C, all texts are English. Numbers and dates are the same in every locale.</source>
        <translation>Die Locale: die erste Variable, die gesetzt ist. In einer Sprache ohne Katalog und in der Locale C sind alle Texte englisch. Zahlen und Datumsangaben sind in jeder Locale gleich.</translation>
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
        <source>The names of a device and its drives.</source>
        <translation>Die Namen eines Geräts und seiner Antriebe.</translation>
    </message>
    <message>
        <source>The Ethernet settings of a device.</source>
        <translation>Die Ethernet-Einstellungen eines Geräts.</translation>
    </message>
    <message>
        <source>The product and the versions of a device&apos;s operating system.</source>
        <translation>Produkt und Versionen des Betriebssystems eines Geräts.</translation>
    </message>
    <message>
        <source>The catalogues of translated texts, relative to the directory of the program.</source>
        <translation>Die Kataloge mit den übersetzten Texten, relativ zum Verzeichnis des Programms.</translation>
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
        <source>Results go to standard output, diagnostics to standard error. Programs should use --json: only the sentences in it depend on the language.</source>
        <translation>Ergebnisse gehen auf die Standardausgabe, Meldungen auf die Standardfehlerausgabe. Programme sollten --json verwenden: Nur die Sätze darin hängen von der Sprache ab.</translation>
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
        <source>Print the manual page in the format of man(1).</source>
        <translation>Die Handbuchseite im Format von man(1) ausgeben.</translation>
    </message>
    <message>
        <source>The configuration that both sides started from.</source>
        <translation>Die Konfiguration, von der beide Seiten ausgegangen sind.</translation>
    </message>
    <message>
        <source>The configuration with the changes of one side; the result replaces it.</source>
        <translation>Die Konfiguration mit den Änderungen der einen Seite; das Ergebnis ersetzt sie.</translation>
    </message>
    <message>
        <source>The configuration with the changes of the other side.</source>
        <translation>Die Konfiguration mit den Änderungen der anderen Seite.</translation>
    </message>
    <message>
        <source>Save the result as another file; - is standard output.</source>
        <translation>Das Ergebnis als andere Datei sichern; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>conflict: %1</source>
        <translation>Konflikt: %1</translation>
    </message>
    <message>
        <source>Merge two changed versions of a configuration.</source>
        <translation>Zwei geänderte Fassungen einer Konfiguration zusammenführen.</translation>
    </message>
    <message>
        <source>Code of a system message, 1024 to 1151 (0x400 to 0x47f).</source>
        <translation>Code einer Systemmeldung, 1024 bis 1151 (0x400 bis 0x47f).</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid code.</source>
        <translation>&apos;%1&apos; ist kein gültiger Code.</translation>
    </message>
    <message>
        <source>%1 is not the code of a system message; write a number from 1024 to 1151.</source>
        <translation>%1 ist nicht der Code einer Systemmeldung; schreiben Sie eine Zahl von 1024 bis 1151.</translation>
    </message>
    <message>
        <source>Show the meaning of system messages of a device.</source>
        <translation>Die Bedeutung von Systemmeldungen eines Geräts zeigen.</translation>
    </message>
    <message>
        <source>The slot is missing; write OM and a number, such as OM1.</source>
        <translation>Der Steckplatz fehlt; schreiben Sie OM und eine Zahl, wie etwa OM1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid slot; write OM and a number, such as OM1.</source>
        <translation>&apos;%1&apos; ist kein gültiger Steckplatz; schreiben Sie OM und eine Zahl, wie etwa OM1.</translation>
    </message>
    <message>
        <source>The interface is missing; write two letters or more, such as EC.</source>
        <translation>Die Schnittstelle fehlt; schreiben Sie zwei Buchstaben oder mehr, wie etwa EC.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid interface; write two letters or more, such as EC.</source>
        <translation>&apos;%1&apos; ist keine gültige Schnittstelle; schreiben Sie zwei Buchstaben oder mehr, wie etwa EC.</translation>
    </message>
    <message>
        <source>The hardware version is missing; write H and a number, such as H2.</source>
        <translation>Die Hardwareversion fehlt; schreiben Sie H und eine Zahl, wie etwa H2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid hardware version; write H and a number, such as H2.</source>
        <translation>&apos;%1&apos; ist keine gültige Hardwareversion; schreiben Sie H und eine Zahl, wie etwa H2.</translation>
    </message>
    <message>
        <source>The software version is missing; write V and two numbers, such as V1_3.</source>
        <translation>Die Softwareversion fehlt; schreiben Sie V und zwei Zahlen, wie etwa V1_3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid software version; write V and two numbers, such as V1_3.</source>
        <translation>&apos;%1&apos; ist keine gültige Softwareversion; schreiben Sie V und zwei Zahlen, wie etwa V1_3.</translation>
    </message>
    <message>
        <source>The suffix is missing, such as .%1.</source>
        <translation>Die Dateiendung fehlt, wie etwa .%1.</translation>
    </message>
    <message>
        <source>After the versions only &apos;_&apos; and a text may follow, then &apos;.&apos; and a suffix; text and suffix consist of letters, digits and &apos;_&apos;.</source>
        <translation>Nach den Versionen dürfen nur &apos;_&apos; und ein Text folgen, danach &apos;.&apos; und eine Dateiendung; Text und Dateiendung bestehen aus Buchstaben, Ziffern und &apos;_&apos;.</translation>
    </message>
    <message>
        <source>File name of option-module firmware, with or without directories; the file does not have to exist.</source>
        <translation>Dateiname einer Firmware für Optionsmodule, mit oder ohne Verzeichnisse; die Datei muss nicht vorhanden sein.</translation>
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
        <source>Show which option module a firmware file is for.</source>
        <translation>Zeigen, für welches Optionsmodul eine Firmwaredatei bestimmt ist.</translation>
    </message>
    <message>
        <source>The network.conf to check.</source>
        <translation>Die network.conf, die geprüft werden soll.</translation>
    </message>
    <message>
        <source>Report errors in a network.conf.</source>
        <translation>Fehler in einer network.conf melden.</translation>
    </message>
    <message>
        <source>%1: The reported lines would be lost. Correct or remove them first.</source>
        <translation>%1: Die gemeldeten Zeilen gingen verloren. Berichtigen oder entfernen Sie sie zuerst.</translation>
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
        <source>Start from the defaults if the file does not exist.</source>
        <translation>Von den Vorgabewerten ausgehen, wenn es die Datei nicht gibt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not have the form KEY=VALUE.</source>
        <translation>&apos;%1&apos; hat nicht die Form KEY=VALUE.</translation>
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
        <source>&apos;%1&apos; is neither a built-in template nor a file. The built-in templates are: %2.</source>
        <translation>&apos;%1&apos; ist weder eine eingebaute Vorlage noch eine Datei. Die eingebauten Vorlagen sind: %2.</translation>
    </message>
    <message>
        <source>The template %1 is for the class &apos;%2&apos;, not for %3.</source>
        <translation>Die Vorlage %1 ist für die Klasse &apos;%2&apos;, nicht für %3.</translation>
    </message>
    <message>
        <source>The configuration to create; - prints it. Required except with --list-templates.</source>
        <translation>Die Konfiguration, die angelegt werden soll; - gibt sie aus. Nötig, außer bei --list-templates.</translation>
    </message>
    <message>
        <source>Class of the device: kc2 or kd3. Not required with a template.</source>
        <translation>Klasse des Geräts: kc2 oder kd3. Mit einer Vorlage nicht nötig.</translation>
    </message>
    <message>
        <source>Name of the device.</source>
        <translation>Name des Geräts.</translation>
    </message>
    <message>
        <source>The template: the name of a built-in one, or the file of a configuration.</source>
        <translation>Die Vorlage: der Name einer eingebauten oder die Datei einer Konfiguration.</translation>
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
        <source>%1 already exists and is not changed.</source>
        <translation>%1 existiert schon und wird nicht geändert.</translation>
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
        <source>Show product and versions of a device&apos;s operating system.</source>
        <translation>Produkt und Versionen des Betriebssystems eines Geräts zeigen.</translation>
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
        <source>What to remove: list entries, single files or items. Either all are removed or none.</source>
        <translation>Was entfernt werden soll: Listenelemente, einzelne Dateien oder Einträge. Entweder werden alle entfernt oder keiner.</translation>
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
        <source>The configuration to report on. The page shows its findings, which do not make the command fail.</source>
        <translation>Die Konfiguration, über die berichtet wird. Die Seite zeigt ihre Befunde, die den Befehl nicht scheitern lassen.</translation>
    </message>
    <message>
        <source>The file to write; by default standard output.</source>
        <translation>Die Datei, die geschrieben wird; ohne Angabe die Standardausgabe.</translation>
    </message>
    <message>
        <source>The file name of --output is empty.</source>
        <translation>Der Dateiname von --output ist leer.</translation>
    </message>
    <message>
        <source>--json requires --output with the name of a file.</source>
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
        <source>Create a page that shows a configuration and its findings.</source>
        <translation>Eine Seite erzeugen, die eine Konfiguration und ihre Befunde zeigt.</translation>
    </message>
    <message>
        <source>List the rules that &apos;check&apos; applies.</source>
        <translation>Die Regeln auflisten, die &apos;check&apos; anwendet.</translation>
    </message>
    <message>
        <source>The item to set.</source>
        <translation>Der Eintrag, der gesetzt werden soll.</translation>
    </message>
    <message>
        <source>Its new value. More pairs of PATH and VALUE may follow; either all are set or none. Write -- before a value that begins with a hyphen.</source>
        <translation>Sein neuer Wert. Weitere Paare aus PATH und VALUE dürfen folgen; entweder werden alle gesetzt oder keines. Schreiben Sie -- vor einen Wert, der mit einem Bindestrich beginnt.</translation>
    </message>
    <message>
        <source>Set items of a configuration and keep the rest unchanged.</source>
        <translation>Einträge einer Konfiguration setzen und den Rest unverändert lassen.</translation>
    </message>
    <message>
        <source>The settings document to change.</source>
        <translation>Die Einstellungsdatei, die geändert werden soll.</translation>
    </message>
    <message>
        <source>Name of the drive with the given number, 0 to 254; may be repeated.</source>
        <translation>Name des Antriebs mit der angegebenen Nummer, 0 bis 254; darf mehrfach angegeben werden.</translation>
    </message>
    <message>
        <source>Start a new document if the file does not exist.</source>
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
        <source>Set the names of a device and its drives.</source>
        <translation>Die Namen eines Geräts und seiner Antriebe setzen.</translation>
    </message>
    <message>
        <source>The settings document to show.</source>
        <translation>Die Einstellungsdatei, die gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Show the names of a device and its drives.</source>
        <translation>Die Namen eines Geräts und seiner Antriebe zeigen.</translation>
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
        <source>This is not a configuration.</source>
        <translation>Dies ist keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1 already exists and is not a manifest: %2</source>
        <translation>%1 existiert schon und ist kein Manifest: %2</translation>
    </message>
    <message>
        <source>Staged %1 files with %2 bytes; checksum of the manifest: %3</source>
        <translation>%1 Dateien mit %2 Bytes bereitgestellt; Prüfsumme des Manifests: %3</translation>
    </message>
    <message>
        <source>The configuration to stage.</source>
        <translation>Die Konfiguration, die bereitgestellt werden soll.</translation>
    </message>
    <message>
        <source>The directory that contains the files of the configuration.</source>
        <translation>Das Verzeichnis, das die Dateien der Konfiguration enthält.</translation>
    </message>
    <message>
        <source>The directory to create for the files of the device.</source>
        <translation>Das Verzeichnis, das für die Dateien des Geräts erzeugt werden soll.</translation>
    </message>
    <message>
        <source>The archive to create, a .tar.gz file with the same content.</source>
        <translation>Das Archiv, das erzeugt werden soll, eine .tar.gz-Datei mit demselben Inhalt.</translation>
    </message>
    <message>
        <source>Replace the device tree that ROOT already contains.</source>
        <translation>Den Gerätebaum ersetzen, den ROOT schon enthält.</translation>
    </message>
    <message>
        <source>Also write the manifest to the project.</source>
        <translation>Das Manifest auch in das Projekt schreiben.</translation>
    </message>
    <message>
        <source>The project is missing. Give --project DIR.</source>
        <translation>Das Projekt fehlt. Geben Sie --project DIR an.</translation>
    </message>
    <message>
        <source>The target is missing. Give --to ROOT, --archive OUT, or both.</source>
        <translation>Das Ziel fehlt. Geben Sie --to ROOT, --archive OUT oder beides an.</translation>
    </message>
    <message>
        <source>Only a directory can be replaced. Give --to ROOT.</source>
        <translation>Nur ein Verzeichnis kann ersetzt werden. Geben Sie --to ROOT an.</translation>
    </message>
    <message>
        <source>Staging</source>
        <translation>Bereitstellung</translation>
    </message>
    <message>
        <source>Create the tree of files for the device.</source>
        <translation>Den Dateibaum für das Gerät erzeugen.</translation>
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
        <source>The configuration to show. The tree shows its findings, which do not make the command fail.</source>
        <translation>Die Konfiguration, die gezeigt werden soll. Der Baum zeigt ihre Befunde, die den Befehl nicht scheitern lassen.</translation>
    </message>
    <message>
        <source>When to use colours: always, never or auto; auto uses them on terminals unless NO_COLOR is set.</source>
        <translation>Wann Farben verwendet werden: always, never oder auto; auto verwendet sie auf Terminals, wenn NO_COLOR nicht gesetzt ist.</translation>
    </message>
    <message>
        <source>--color must be always, never or auto.</source>
        <translation>--color muss always, never oder auto sein.</translation>
    </message>
    <message>
        <source>Show a configuration as a tree, with all places and findings.</source>
        <translation>Eine Konfiguration als Baum zeigen, mit allen Plätzen und Befunden.</translation>
    </message>
    <message>
        <source>%1: All %2 files match the manifest.</source>
        <translation>%1: Alle %2 Dateien stimmen mit dem Manifest überein.</translation>
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
        <source>Report missing, surplus and changed files of a staged tree.</source>
        <translation>Fehlende, überzählige und geänderte Dateien eines bereitgestellten Baums melden.</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;. Try &apos;vrndevice --help&apos;.</source>
        <translation>Unbekannter Befehl &apos;%1&apos;. Siehe &apos;vrndevice --help&apos;.</translation>
    </message>
    <message>
        <source>Unknown command &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation>Unbekannter Befehl &apos;%1&apos;. Meinten Sie &apos;%2&apos;?</translation>
    </message>
    <message>
        <source>The command is missing. Try &apos;vrndevice --help&apos;.</source>
        <translation>Der Befehl fehlt. Siehe &apos;vrndevice --help&apos;.</translation>
    </message>
    <message>
        <source>The command of &apos;%1&apos; is missing. Try &apos;vrndevice %1 --help&apos;.</source>
        <translation>Der Befehl von &apos;%1&apos; fehlt. Siehe &apos;vrndevice %1 --help&apos;.</translation>
    </message>
</context>
</TS>
