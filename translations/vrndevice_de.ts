<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>vrndevice</name>
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
        <source>%1: nothing is wrong</source>
        <translation>%1: alles in Ordnung</translation>
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
        <source>The configuration to read.</source>
        <translation>Die Konfiguration, die gelesen werden soll.</translation>
    </message>
    <message>
        <source>List every file with its directories on the device and in the project.</source>
        <translation>Jede Datei mit ihren Verzeichnissen auf dem Gerät und im Projekt auflisten.</translation>
    </message>
    <message>
        <source>The settings document to change.</source>
        <translation>Die Einstellungsdatei, die geändert werden soll.</translation>
    </message>
    <message>
        <source>Name of the device.</source>
        <translation>Name des Geräts.</translation>
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
        <source>Show a configuration as a tree.</source>
        <translation>Eine Konfiguration als Baum zeigen.</translation>
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
