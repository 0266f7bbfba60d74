<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CConfigurationCheck</name>
    <message>
        <source>%1: The directory cannot be read.</source>
        <translation>%1: Das Verzeichnis ist nicht lesbar.</translation>
    </message>
    <message>
        <source>%1: There is no such directory.</source>
        <translation>%1: Dieses Verzeichnis gibt es nicht.</translation>
    </message>
    <message>
        <source>The document does not tell its version.</source>
        <translation>Das Dokument nennt seine Version nicht.</translation>
    </message>
    <message>
        <source>The document is read as one of version 1.0; write &apos;version=&quot;1.0&quot;&apos;, or save it with a tool.</source>
        <translation>Das Dokument wird als eines der Version 1.0 gelesen; schreiben Sie &apos;version=&quot;1.0&quot;&apos;, oder sichern Sie es mit einem Werkzeug.</translation>
    </message>
    <message>
        <source>The version of the document is no version.</source>
        <translation>Die Version des Dokuments ist keine.</translation>
    </message>
    <message>
        <source>A version is one to three numbers with dots between them; the document is read as one of version 1.0.</source>
        <translation>Eine Version besteht aus einer bis drei Zahlen mit Punkten dazwischen; das Dokument wird als eines der Version 1.0 gelesen.</translation>
    </message>
    <message>
        <source>The document was created with a previous or a later version.</source>
        <translation>Das Dokument wurde mit einer früheren oder späteren Version erstellt.</translation>
    </message>
    <message>
        <source>The document is read as one of version 1.0: look whether everything in it is known here, then save it anew.</source>
        <translation>Das Dokument wird als eines der Version 1.0 gelesen: Sehen Sie nach, ob alles darin hier bekannt ist, und sichern Sie es dann neu.</translation>
    </message>
    <message>
        <source>Nobody knows an element of that name.</source>
        <translation>Ein Element dieses Namens kennt niemand.</translation>
    </message>
    <message>
        <source>Mend the name, or remove the element. Capital and small letters matter.</source>
        <translation>Berichtigen Sie den Namen, oder entfernen Sie das Element. Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>An element stands where it is not looked for, and is passed over.</source>
        <translation>Ein Element steht, wo es nicht gesucht wird, und wird übergangen.</translation>
    </message>
    <message>
        <source>Move the element to where it is looked for; the finding tells where that is.</source>
        <translation>Verschieben Sie das Element dorthin, wo es gesucht wird; der Befund nennt die Stelle.</translation>
    </message>
    <message>
        <source>An element stands more than once, but only the first one counts.</source>
        <translation>Ein Element steht mehrmals, aber nur das erste zählt.</translation>
    </message>
    <message>
        <source>Remove all but the one that is meant: it is the first one that is read.</source>
        <translation>Entfernen Sie alle bis auf das gemeinte: Gelesen wird das erste.</translation>
    </message>
    <message>
        <source>An element has an attribute that nobody reads.</source>
        <translation>Ein Element hat ein Attribut, das niemand liest.</translation>
    </message>
    <message>
        <source>Remove the attribute, or mend its name. Names that belong to XML itself, like &apos;xmlns&apos; and &apos;xml:lang&apos;, are no findings.</source>
        <translation>Entfernen Sie das Attribut, oder berichtigen Sie seinen Namen. Namen, die zu XML selbst gehören, wie &apos;xmlns&apos; und &apos;xml:lang&apos;, sind keine Befunde.</translation>
    </message>
    <message>
        <source>Text stands between elements, where nobody reads it.</source>
        <translation>Text steht zwischen Elementen, wo ihn niemand liest.</translation>
    </message>
    <message>
        <source>Remove the text, or put it into the element for which it is meant.</source>
        <translation>Entfernen Sie den Text, oder setzen Sie ihn in das Element, für das er gedacht ist.</translation>
    </message>
    <message>
        <source>A date is none.</source>
        <translation>Ein Datum ist keines.</translation>
    </message>
    <message>
        <source>Write year, month and day: &apos;2026-09-14&apos;. An empty date is none, and allowed.</source>
        <translation>Schreiben Sie Jahr, Monat und Tag: &apos;2026-09-14&apos;. Ein leeres Datum ist keines und erlaubt.</translation>
    </message>
    <message>
        <source>The configuration was revised before it was created.</source>
        <translation>Die Konfiguration wurde überarbeitet, bevor sie erstellt wurde.</translation>
    </message>
    <message>
        <source>One of the two dates is wrong, or they are interchanged.</source>
        <translation>Eines der beiden Daten ist falsch, oder sie sind vertauscht.</translation>
    </message>
    <message>
        <source>So much was found that the rest is left out.</source>
        <translation>Es wurde so viel gefunden, dass der Rest weggelassen wird.</translation>
    </message>
    <message>
        <source>Mend what is told, then check again: of one document 100,000 findings are told at most.</source>
        <translation>Beheben Sie, was genannt ist, und prüfen Sie dann erneut: Zu einem Dokument werden höchstens 100.000 Befunde genannt.</translation>
    </message>
    <message>
        <source>The document has no device.</source>
        <translation>Das Dokument enthält kein Gerät.</translation>
    </message>
    <message>
        <source>Without a device there is nothing to be commissioned; add the element &apos;Device&apos;.</source>
        <translation>Ohne Gerät gibt es nichts in Betrieb zu nehmen; fügen Sie das Element &apos;Device&apos; hinzu.</translation>
    </message>
    <message>
        <source>The device has no class.</source>
        <translation>Das Gerät hat keine Klasse.</translation>
    </message>
    <message>
        <source>Write &apos;kc2&apos; or &apos;kd3&apos;.</source>
        <translation>Schreiben Sie &apos;kc2&apos; oder &apos;kd3&apos;.</translation>
    </message>
    <message>
        <source>The class of the device is left open.</source>
        <translation>Die Klasse des Geräts ist offen gelassen.</translation>
    </message>
    <message>
        <source>There is no such class of devices.</source>
        <translation>Diese Geräteklasse gibt es nicht.</translation>
    </message>
    <message>
        <source>Write &apos;kc2&apos; or &apos;kd3&apos;, in small letters; anything else is read as &apos;Undefined&apos;.</source>
        <translation>Schreiben Sie &apos;kc2&apos; oder &apos;kd3&apos; in Kleinbuchstaben; alles andere wird als &apos;Undefined&apos; gelesen.</translation>
    </message>
    <message>
        <source>The device has no name.</source>
        <translation>Das Gerät hat keinen Namen.</translation>
    </message>
    <message>
        <source>Give the device a name. It is also that of the device&apos;s directory in the project.</source>
        <translation>Geben Sie dem Gerät einen Namen. So heißt auch das Verzeichnis des Geräts im Projekt.</translation>
    </message>
    <message>
        <source>The device has no configuration block.</source>
        <translation>Das Gerät hat keinen Konfigurationsblock.</translation>
    </message>
    <message>
        <source>Add the element &apos;Config&apos;; without it the device has no options, files and plug-ins.</source>
        <translation>Fügen Sie das Element &apos;Config&apos; hinzu; ohne es hat das Gerät keine Optionen, Dateien und Plug-ins.</translation>
    </message>
    <message>
        <source>The device does not tell the name of its configuration.</source>
        <translation>Das Gerät nennt den Namen seiner Konfiguration nicht.</translation>
    </message>
    <message>
        <source>The name is read as &apos;STD&apos;; write it down.</source>
        <translation>Der Name wird als &apos;STD&apos; gelesen; schreiben Sie ihn hin.</translation>
    </message>
    <message>
        <source>The name of the configuration is empty.</source>
        <translation>Der Name der Konfiguration ist leer.</translation>
    </message>
    <message>
        <source>Give the configuration a name: without one it has no directories on the device.</source>
        <translation>Geben Sie der Konfiguration einen Namen: Ohne einen hat sie keine Verzeichnisse auf dem Gerät.</translation>
    </message>
    <message>
        <source>The name of the configuration is one that the device keeps for itself.</source>
        <translation>Der Name der Konfiguration ist einer, den sich das Gerät selbst vorbehält.</translation>
    </message>
    <message>
        <source>Choose a name without &apos;setup&apos;, &apos;failsafe&apos; and &apos;mount error&apos;.</source>
        <translation>Wählen Sie einen Namen ohne &apos;setup&apos;, &apos;failsafe&apos; und &apos;mount error&apos;.</translation>
    </message>
    <message>
        <source>The name of the configuration is not one that can be entered.</source>
        <translation>Der Name der Konfiguration ist keiner, der eingegeben werden kann.</translation>
    </message>
    <message>
        <source>Use letters from A to Z, digits, &apos;_&apos;, &apos;-&apos; and &apos;+&apos;; a number in parentheses may follow.</source>
        <translation>Verwenden Sie Buchstaben von A bis Z, Ziffern, &apos;_&apos;, &apos;-&apos; und &apos;+&apos;; eine Zahl in Klammern darf folgen.</translation>
    </message>
    <message>
        <source>A hardware identity is none.</source>
        <translation>Eine Hardwarekennung ist keine.</translation>
    </message>
    <message>
        <source>Write &apos;PREFIX:NAME:PLATFORM:VERSION:REVISION&apos;; the last three are numbers from 0 to 65535. What is none is read as empty.</source>
        <translation>Schreiben Sie &apos;PREFIX:NAME:PLATFORM:VERSION:REVISION&apos;; die letzten drei sind Zahlen von 0 bis 65535. Was keine Hardwarekennung ist, wird als leer gelesen.</translation>
    </message>
    <message>
        <source>The hardware identity of a drive does not fit that of the device.</source>
        <translation>Die Hardwarekennung eines Antriebs passt nicht zu der des Geräts.</translation>
    </message>
    <message>
        <source>Prefix, name and platform of a drive are those of its device; version and revision may differ. Was the drive copied from another device?</source>
        <translation>Präfix, Name und Plattform eines Antriebs sind die seines Geräts; Version und Revision dürfen abweichen. Wurde der Antrieb von einem anderen Gerät kopiert?</translation>
    </message>
    <message>
        <source>A start option is none, or not separated by a blank.</source>
        <translation>Eine Startoption ist keine oder nicht durch ein Leerzeichen getrennt.</translation>
    </message>
    <message>
        <source>An option begins with a hyphen, and what follows it is its argument. Options are separated by blanks; a line break is none.</source>
        <translation>Eine Option beginnt mit einem Bindestrich, und was ihr folgt, ist ihr Argument. Optionen sind durch Leerzeichen getrennt; ein Zeilenumbruch ist keines.</translation>
    </message>
    <message>
        <source>A start option stands more than once.</source>
        <translation>Eine Startoption steht mehrmals.</translation>
    </message>
    <message>
        <source>Remove all but one. The same option with different arguments is no finding.</source>
        <translation>Entfernen Sie alle bis auf eine. Dieselbe Option mit verschiedenen Argumenten ist kein Befund.</translation>
    </message>
    <message>
        <source>The flag of the OPC UA server is neither true nor false.</source>
        <translation>Der Schalter des OPC-UA-Servers ist weder true noch false.</translation>
    </message>
    <message>
        <source>Write &apos;true&apos; or &apos;false&apos;, in small letters; anything else is read as &apos;false&apos;.</source>
        <translation>Schreiben Sie &apos;true&apos; oder &apos;false&apos; in Kleinbuchstaben; alles andere wird als &apos;false&apos; gelesen.</translation>
    </message>
    <message>
        <source>The flag of the OPC UA server and the option -opc contradict each other.</source>
        <translation>Der Schalter des OPC-UA-Servers und die Option -opc widersprechen sich.</translation>
    </message>
    <message>
        <source>Add the option &apos;-opc&apos;, or disable the server.</source>
        <translation>Fügen Sie die Option &apos;-opc&apos; hinzu, oder schalten Sie den Server ab.</translation>
    </message>
    <message>
        <source>A parameter file has no type.</source>
        <translation>Eine Parameterdatei hat keinen Typ.</translation>
    </message>
    <message>
        <source>Tell the type with the attribute &apos;type&apos;; it decides where the file lies.</source>
        <translation>Nennen Sie den Typ mit dem Attribut &apos;type&apos;; er entscheidet, wo die Datei liegt.</translation>
    </message>
    <message>
        <source>The type of a parameter file is left open.</source>
        <translation>Der Typ einer Parameterdatei ist offen gelassen.</translation>
    </message>
    <message>
        <source>Tell the type; it decides where the file lies.</source>
        <translation>Nennen Sie den Typ; er entscheidet, wo die Datei liegt.</translation>
    </message>
    <message>
        <source>There is no such type of parameter files.</source>
        <translation>Diesen Typ von Parameterdateien gibt es nicht.</translation>
    </message>
    <message>
        <source>Mend the type; it is read as &apos;Undefined&apos;. Capital and small letters matter.</source>
        <translation>Berichtigen Sie den Typ; er wird als &apos;Undefined&apos; gelesen. Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>A parameter file stands more than once.</source>
        <translation>Eine Parameterdatei steht mehrmals.</translation>
    </message>
    <message>
        <source>Remove all but one. Files of one name, but different types, may stand side by side.</source>
        <translation>Entfernen Sie alle bis auf eine. Dateien gleichen Namens, aber verschiedenen Typs dürfen nebeneinander stehen.</translation>
    </message>
    <message>
        <source>An FPGA image stands more than once.</source>
        <translation>Ein FPGA-Abbild steht mehrmals.</translation>
    </message>
    <message>
        <source>Remove all but one; the first image is the active one.</source>
        <translation>Entfernen Sie alle bis auf eines; das erste Abbild ist das aktive.</translation>
    </message>
    <message>
        <source>A plug-in has no name.</source>
        <translation>Ein Plug-in hat keinen Namen.</translation>
    </message>
    <message>
        <source>Name the plug-in, or remove the entry.</source>
        <translation>Benennen Sie das Plug-in, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>A plug-in has no version.</source>
        <translation>Ein Plug-in hat keine Version.</translation>
    </message>
    <message>
        <source>Tell the version: it is the end of the file&apos;s name.</source>
        <translation>Nennen Sie die Version: Sie ist das Ende des Dateinamens.</translation>
    </message>
    <message>
        <source>The version of a plug-in is not made of numbers and dots.</source>
        <translation>Die Version eines Plug-ins besteht nicht aus Zahlen und Punkten.</translation>
    </message>
    <message>
        <source>Write numbers with dots between them, like &apos;1.3&apos;: the version is the end of the file&apos;s name.</source>
        <translation>Schreiben Sie Zahlen mit Punkten dazwischen, wie &apos;1.3&apos;: Die Version ist das Ende des Dateinamens.</translation>
    </message>
    <message>
        <source>A plug-in stands more than once.</source>
        <translation>Ein Plug-in steht mehrmals.</translation>
    </message>
    <message>
        <source>Remove all but one.</source>
        <translation>Entfernen Sie alle bis auf eines.</translation>
    </message>
    <message>
        <source>The priority of a plug-in is no number, or out of range.</source>
        <translation>Die Priorität eines Plug-ins ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from -2147483648 to 2147483647; otherwise the plug-in has no priority.</source>
        <translation>Schreiben Sie eine Zahl von -2147483648 bis 2147483647; sonst hat das Plug-in keine Priorität.</translation>
    </message>
    <message>
        <source>The plug-in that runs the application is not among the plug-ins.</source>
        <translation>Das Plug-in, das die Anwendung ausführt, ist nicht unter den Plug-ins.</translation>
    </message>
    <message>
        <source>Add the plug-in, or name one of those that are there.</source>
        <translation>Fügen Sie das Plug-in hinzu, oder nennen Sie eines von denen, die da sind.</translation>
    </message>
    <message>
        <source>There is the plug-in of the EtherCAT master, but no file for it.</source>
        <translation>Das Plug-in des EtherCAT-Masters ist da, aber keine Datei dafür.</translation>
    </message>
    <message>
        <source>Add the bus configuration, or remove the plug-in.</source>
        <translation>Fügen Sie die Buskonfiguration hinzu, oder entfernen Sie das Plug-in.</translation>
    </message>
    <message>
        <source>There is a file for the EtherCAT master, but not its plug-in.</source>
        <translation>Eine Datei für den EtherCAT-Master ist da, aber nicht sein Plug-in.</translation>
    </message>
    <message>
        <source>Add the plug-in &apos;CECatMaster&apos;, or remove the file.</source>
        <translation>Fügen Sie das Plug-in &apos;CECatMaster&apos; hinzu, oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>A drive has no type.</source>
        <translation>Ein Antrieb hat keinen Typ.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; without a type the drive is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; ohne Typ wird der Antrieb als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>The type of a drive is left open.</source>
        <translation>Der Typ eines Antriebs ist offen gelassen.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; the drive is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; der Antrieb wird als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>There is no such type of drives.</source>
        <translation>Diesen Antriebstyp gibt es nicht.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; anything else, also in small letters, is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; alles andere, auch in Kleinbuchstaben, wird als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>A drive that is not read as KD2 has a file of KD2 drives.</source>
        <translation>Ein Antrieb, der nicht als KD2 gelesen wird, hat eine Datei von KD2-Antrieben.</translation>
    </message>
    <message>
        <source>Remove the file, or make the drive a &apos;KD2_drive&apos;.</source>
        <translation>Entfernen Sie die Datei, oder machen Sie den Antrieb zu einem &apos;KD2_drive&apos;.</translation>
    </message>
    <message>
        <source>A drive has no number.</source>
        <translation>Ein Antrieb hat keine Nummer.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 254; otherwise the drive gets the next one that no other drive has.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 254; sonst bekommt der Antrieb die nächste, die kein anderer Antrieb hat.</translation>
    </message>
    <message>
        <source>The number of a drive is no number, or out of range.</source>
        <translation>Die Nummer eines Antriebs ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 254; otherwise the drive gets the next one that no other drive has. 255 means that no number is assigned.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 254; sonst bekommt der Antrieb die nächste, die kein anderer Antrieb hat. 255 bedeutet, dass keine Nummer vergeben ist.</translation>
    </message>
    <message>
        <source>Two drives have the same number.</source>
        <translation>Zwei Antriebe haben dieselbe Nummer.</translation>
    </message>
    <message>
        <source>Give each drive a number of its own; otherwise all but the first get the next ones that no other drive has.</source>
        <translation>Geben Sie jedem Antrieb eine eigene Nummer; sonst bekommen alle bis auf den ersten die nächsten, die kein anderer Antrieb hat.</translation>
    </message>
    <message>
        <source>A drive has no name.</source>
        <translation>Ein Antrieb hat keinen Namen.</translation>
    </message>
    <message>
        <source>Name the drive; otherwise it is named after its number.</source>
        <translation>Benennen Sie den Antrieb; sonst wird er nach seiner Nummer benannt.</translation>
    </message>
    <message>
        <source>Two drives have the same name.</source>
        <translation>Zwei Antriebe haben denselben Namen.</translation>
    </message>
    <message>
        <source>Give each drive a name of its own.</source>
        <translation>Geben Sie jedem Antrieb einen eigenen Namen.</translation>
    </message>
    <message>
        <source>The bus identifier of a drive is no number, or out of range.</source>
        <translation>Die Buskennung eines Antriebs ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 4294967295; anything else is read as 0, which means that none is assigned.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 4294967295; alles andere wird als 0 gelesen, was bedeutet, dass keine vergeben ist.</translation>
    </message>
    <message>
        <source>Two drives have the same bus identifier.</source>
        <translation>Zwei Antriebe haben dieselbe Buskennung.</translation>
    </message>
    <message>
        <source>Look whether both drives are on the same bus; there each has an identifier of its own.</source>
        <translation>Sehen Sie nach, ob beide Antriebe am selben Bus sind; dort hat jeder seine eigene Kennung.</translation>
    </message>
    <message>
        <source>A file has no name.</source>
        <translation>Eine Datei hat keinen Namen.</translation>
    </message>
    <message>
        <source>Name the file, or remove the entry.</source>
        <translation>Benennen Sie die Datei, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>The name of a file is a path, or has characters that no name has.</source>
        <translation>Der Name einer Datei ist ein Pfad oder hat Zeichen, die kein Name hat.</translation>
    </message>
    <message>
        <source>Write the name alone; directories have elements of their own. A line break in the element belongs to the name, too.</source>
        <translation>Schreiben Sie nur den Namen; Verzeichnisse haben eigene Elemente. Auch ein Zeilenumbruch im Element gehört zum Namen.</translation>
    </message>
    <message>
        <source>A file stands more than once.</source>
        <translation>Eine Datei steht mehrmals.</translation>
    </message>
    <message>
        <source>Two files would overwrite each other on the device.</source>
        <translation>Zwei Dateien würden sich auf dem Gerät gegenseitig überschreiben.</translation>
    </message>
    <message>
        <source>Give one of the two another name or another directory on the device. Parameter files, FPGA images, plug-ins and the configuration itself have their places, too.</source>
        <translation>Geben Sie einer der beiden einen anderen Namen oder ein anderes Verzeichnis auf dem Gerät. Auch Parameterdateien, FPGA-Abbilder, Plug-ins und die Konfiguration selbst haben ihre Plätze.</translation>
    </message>
    <message>
        <source>A file has no directory on the device.</source>
        <translation>Eine Datei hat kein Verzeichnis auf dem Gerät.</translation>
    </message>
    <message>
        <source>Tell where on the device the file belongs.</source>
        <translation>Nennen Sie den Platz auf dem Gerät, an den die Datei gehört.</translation>
    </message>
    <message>
        <source>A directory on the device does not begin with a slash.</source>
        <translation>Ein Verzeichnis auf dem Gerät beginnt nicht mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>Begin with a slash; the directory is read as if there were one.</source>
        <translation>Beginnen Sie mit einem Schrägstrich; das Verzeichnis wird gelesen, als stünde dort einer.</translation>
    </message>
    <message>
        <source>A directory on the device leads upwards with &quot;..&quot;.</source>
        <translation>Ein Verzeichnis auf dem Gerät führt nach oben mit &quot;..&quot;.</translation>
    </message>
    <message>
        <source>Write the directory that is meant, without &apos;..&apos;.</source>
        <translation>Schreiben Sie das gemeinte Verzeichnis, ohne &apos;..&apos;.</translation>
    </message>
    <message>
        <source>A directory on the device lies outside the device&apos;s trees.</source>
        <translation>Ein Verzeichnis auf dem Gerät liegt außerhalb der Verzeichnisbäume des Geräts.</translation>
    </message>
    <message>
        <source>Choose a directory below &apos;/velkor/&apos; or &apos;/opt/velkor/&apos;.</source>
        <translation>Wählen Sie ein Verzeichnis unter &apos;/velkor/&apos; oder &apos;/opt/velkor/&apos;.</translation>
    </message>
    <message>
        <source>A directory on the device belongs to another configuration.</source>
        <translation>Ein Verzeichnis auf dem Gerät gehört zu einer anderen Konfiguration.</translation>
    </message>
    <message>
        <source>Was the configuration renamed? Then the directory has to follow.</source>
        <translation>Wurde die Konfiguration umbenannt? Dann muss das Verzeichnis folgen.</translation>
    </message>
    <message>
        <source>A directory in the project is absolute, and holds on one computer only.</source>
        <translation>Ein Verzeichnis im Projekt ist absolut und gilt nur auf einem Rechner.</translation>
    </message>
    <message>
        <source>Write the directory relative to the project.</source>
        <translation>Schreiben Sie das Verzeichnis relativ zum Projekt.</translation>
    </message>
    <message>
        <source>A directory in the project leads out of the project.</source>
        <translation>Ein Verzeichnis im Projekt führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>Move the file into the project.</source>
        <translation>Verschieben Sie die Datei in das Projekt.</translation>
    </message>
    <message>
        <source>A directory in the project is not below that of the device, and is removed when the device is read.</source>
        <translation>Ein Verzeichnis im Projekt liegt nicht unter dem des Geräts und wird beim Lesen des Geräts entfernt.</translation>
    </message>
    <message>
        <source>Object dictionary and fault texts lie below the directory that is called as the device.</source>
        <translation>Objektverzeichnis und Fehlertexte liegen unter dem Verzeichnis, das wie das Gerät heißt.</translation>
    </message>
    <message>
        <source>A file is not in the project.</source>
        <translation>Eine Datei ist nicht im Projekt.</translation>
    </message>
    <message>
        <source>Put the file into the project, or mend its name or directory. For a parameter file, an FPGA image and a plug-in the directory follows from its kind; &apos;vrndevice place&apos; shows it.</source>
        <translation>Legen Sie die Datei in das Projekt, oder berichtigen Sie ihren Namen oder ihr Verzeichnis. Bei einer Parameterdatei, einem FPGA-Abbild und einem Plug-in folgt das Verzeichnis aus der Art; &apos;vrndevice place&apos; zeigt es.</translation>
    </message>
    <message>
        <source>A file is in the project with capital and small letters interchanged.</source>
        <translation>Eine Datei ist im Projekt mit vertauschter Groß- und Kleinschreibung.</translation>
    </message>
    <message>
        <source>Call the file in the project and in the configuration the same: on the device capital and small letters matter.</source>
        <translation>Nennen Sie die Datei im Projekt und in der Konfiguration gleich: Auf dem Gerät zählt die Groß- und Kleinschreibung.</translation>
    </message>
    <message>
        <source>A symbolic link leads out of the project.</source>
        <translation>Eine symbolische Verknüpfung führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>Replace the symbolic link by the file: whoever gets the project does not get what lies outside.</source>
        <translation>Ersetzen Sie den symbolischen Link durch die Datei: Wer das Projekt bekommt, bekommt nicht, was außerhalb liegt.</translation>
    </message>
    <message>
        <source>What is in the project is no regular file.</source>
        <translation>Was im Projekt steht, ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Replace the directory, pipe or device of that name by the file.</source>
        <translation>Ersetzen Sie das Verzeichnis, die Pipe oder die Gerätedatei dieses Namens durch die Datei.</translation>
    </message>
    <message>
        <source>A file in the project cannot be read.</source>
        <translation>Eine Datei im Projekt ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Look at the permissions of the file.</source>
        <translation>Sehen Sie sich die Rechte der Datei an.</translation>
    </message>
    <message>
        <source>A file in the project is empty.</source>
        <translation>Eine Datei im Projekt ist leer.</translation>
    </message>
    <message>
        <source>Fill the file, or remove the entry.</source>
        <translation>Füllen Sie die Datei, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>A file in the project is not the one that the manifest tells.</source>
        <translation>Eine Datei im Projekt ist nicht die, die das Manifest nennt.</translation>
    </message>
    <message>
        <source>Put back the file with the size and the SHA-256 sum that &apos;manifest.json&apos; tells, or make the manifest anew.</source>
        <translation>Legen Sie die Datei mit der Größe und der SHA-256-Summe zurück, die &apos;manifest.json&apos; nennt, oder erstellen Sie das Manifest neu.</translation>
    </message>
    <message>
        <source>The manifest of the project cannot be read.</source>
        <translation>Das Manifest des Projekts ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Make the manifest anew. Until then the files are not compared with it.</source>
        <translation>Erstellen Sie das Manifest neu. Bis dahin werden die Dateien nicht mit ihm verglichen.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;: capital and small letters matter.</source>
        <translation>Schreiben Sie &apos;%1&apos;: Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>The project&apos;s manifest cannot be read: %1</source>
        <translation>Das Manifest des Projekts ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>a manifest as it is made by staging</source>
        <translation>ein Manifest, wie es beim Bereitstellen entsteht</translation>
    </message>
    <message>
        <source>Make the manifest anew; files are not compared with this one.</source>
        <translation>Erzeugen Sie das Manifest neu; mit diesem werden keine Dateien verglichen.</translation>
    </message>
    <message>
        <source>There is more to be found; from here on it is left out.</source>
        <translation>Es gibt mehr zu finden; ab hier wird es weggelassen.</translation>
    </message>
    <message>
        <source>Mend what is told, then check again.</source>
        <translation>Beheben Sie, was genannt ist, und prüfen Sie dann erneut.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has no attribute &apos;%2&apos;; nobody reads it.</source>
        <translation>Das Element &apos;%1&apos; hat kein Attribut &apos;%2&apos;; niemand liest es.</translation>
    </message>
    <message>
        <source>Remove the attribute.</source>
        <translation>Entfernen Sie das Attribut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stands more than once in &apos;%2&apos;; only the first one is read.</source>
        <translation>&apos;%1&apos; steht mehrmals in &apos;%2&apos;; nur das erste wird gelesen.</translation>
    </message>
    <message>
        <source>one &apos;%1&apos;</source>
        <translation>ein &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a text of its own, which nobody reads.</source>
        <translation>&apos;%1&apos; hat einen eigenen Text, den niemand liest.</translation>
    </message>
    <message>
        <source>nothing but elements</source>
        <translation>nichts als Elemente</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not looked for in &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; wird in &apos;%2&apos; nicht gesucht.</translation>
    </message>
    <message>
        <source>at the top of the document</source>
        <translation>auf der obersten Ebene des Dokuments</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>Move the element to where it belongs, or remove it.</source>
        <translation>Verschieben Sie das Element dahin, wo es hingehört, oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>There is no element &apos;%1&apos;; nobody reads it.</source>
        <translation>Es gibt kein Element &apos;%1&apos;; niemand liest es.</translation>
    </message>
    <message>
        <source>nothing but text</source>
        <translation>nichts als Text</translation>
    </message>
    <message>
        <source>Remove the element, or mend its name.</source>
        <translation>Entfernen Sie das Element, oder berichtigen Sie seinen Namen.</translation>
    </message>
    <message>
        <source>The document is read as one of version %1; save it anew with this version.</source>
        <translation>Das Dokument wird wie eines der Version %1 gelesen; sichern Sie es neu mit dieser Version.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no version.</source>
        <translation>&apos;%1&apos; ist keine Version.</translation>
    </message>
    <message>
        <source>The document was created with a previous version.</source>
        <translation>Das Dokument wurde mit einer früheren Version erstellt.</translation>
    </message>
    <message>
        <source>The document was created with a later version.</source>
        <translation>Das Dokument wurde mit einer späteren Version erstellt.</translation>
    </message>
    <message>
        <source>an element &apos;%1&apos;</source>
        <translation>ein Element &apos;%1&apos;</translation>
    </message>
    <message>
        <source>Without a device there is nothing to be commissioned.</source>
        <translation>Ohne ein Gerät gibt es nichts in Betrieb zu nehmen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no date.</source>
        <translation>&apos;%1&apos; ist kein Datum.</translation>
    </message>
    <message>
        <source>a date like 2026-11-21</source>
        <translation>ein Datum wie 2026-11-21</translation>
    </message>
    <message>
        <source>%1 or later</source>
        <translation>%1 oder später</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>The name is also that of the device&apos;s directory in the project.</source>
        <translation>Der Name ist auch der des Geräteverzeichnisses im Projekt.</translation>
    </message>
    <message>
        <source>The device is read without options, files and plug-ins.</source>
        <translation>Das Gerät wird ohne Optionen, Dateien und Plug-ins gelesen.</translation>
    </message>
    <message>
        <source>There is no device class &apos;%1&apos;; it is read as &apos;%2&apos;.</source>
        <translation>Es gibt keine Geräteklasse &apos;%1&apos;; sie wird als &apos;%2&apos; gelesen.</translation>
    </message>
    <message>
        <source>It is read as &apos;%1&apos;.</source>
        <translation>Gelesen wird &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>letters, digits, &apos;_&apos;, &apos;-&apos; and &apos;+&apos;; a number in parentheses may follow</source>
        <translation>Buchstaben, Ziffern, &apos;_&apos;, &apos;-&apos; und &apos;+&apos;; eine Zahl in Klammern darf folgen</translation>
    </message>
    <message>
        <source>Without a name it has no directories on the device.</source>
        <translation>Ohne Namen hat sie keine Verzeichnisse auf dem Gerät.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a name that the device keeps for itself.</source>
        <translation>&apos;%1&apos; ist ein Name, den sich das Gerät selbst vorbehält.</translation>
    </message>
    <message>
        <source>a name without &apos;setup&apos;, &apos;failsafe&apos; and &apos;mount error&apos;</source>
        <translation>ein Name ohne &apos;setup&apos;, &apos;failsafe&apos; und &apos;mount error&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a configuration.</source>
        <translation>&apos;%1&apos; kann nicht der Name einer Konfiguration sein.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no hardware identity.</source>
        <translation>&apos;%1&apos; ist keine Hardwarekennung.</translation>
    </message>
    <message>
        <source>The last three are numbers from 0 to 65535; it is read as empty.</source>
        <translation>Die letzten drei sind Zahlen von 0 bis 65535; sie wird als leer gelesen.</translation>
    </message>
    <message>
        <source>options like -trace with one blank between each two</source>
        <translation>Optionen wie -trace mit je einem Leerzeichen dazwischen</translation>
    </message>
    <message>
        <source>Options are separated by something other than a blank.</source>
        <translation>Optionen sind durch etwas anderes als ein Leerzeichen getrennt.</translation>
    </message>
    <message>
        <source>The device takes this for one word.</source>
        <translation>Das Gerät hält dies für ein Wort.</translation>
    </message>
    <message>
        <source>An option has a hyphen, but no name.</source>
        <translation>Eine Option hat einen Bindestrich, aber keinen Namen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no option, and follows none.</source>
        <translation>&apos;%1&apos; ist keine Option und folgt auf keine.</translation>
    </message>
    <message>
        <source>An option begins with a hyphen; what follows it is its argument.</source>
        <translation>Eine Option beginnt mit einem Bindestrich; was ihr folgt, ist ihr Argument.</translation>
    </message>
    <message>
        <source>The option &apos;%1&apos; stands more than once.</source>
        <translation>Die Option &apos;%1&apos; steht mehrmals.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false; it is read as false.</source>
        <translation>&apos;%1&apos; ist weder true noch false; es wird als false gelesen.</translation>
    </message>
    <message>
        <source>The OPC UA server is enabled, but the option %1 is missing.</source>
        <translation>Der OPC-UA-Server ist eingeschaltet, aber die Option %1 fehlt.</translation>
    </message>
    <message>
        <source>Add the option %1, or disable the server.</source>
        <translation>Ergänzen Sie die Option %1, oder schalten Sie den Server aus.</translation>
    </message>
    <message>
        <source>There is the option %1, but the OPC UA server is not enabled.</source>
        <translation>Die Option %1 ist da, aber der OPC-UA-Server ist nicht eingeschaltet.</translation>
    </message>
    <message>
        <source>Enable the server, or remove the option %1.</source>
        <translation>Schalten Sie den Server ein, oder entfernen Sie die Option %1.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is to run the application, but is not among the plug-ins.</source>
        <translation>&apos;%1&apos; soll die Anwendung ausführen, ist aber nicht unter den Plug-ins.</translation>
    </message>
    <message>
        <source>the name of a plug-in</source>
        <translation>der Name eines Plug-ins</translation>
    </message>
    <message>
        <source>Add the plug-in, or name another one.</source>
        <translation>Ergänzen Sie das Plug-in, oder nennen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The plug-in &apos;%1&apos; has no bus configuration.</source>
        <translation>Das Plug-in &apos;%1&apos; hat keine Buskonfiguration.</translation>
    </message>
    <message>
        <source>a file in &apos;%1&apos;</source>
        <translation>eine Datei in &apos;%1&apos;</translation>
    </message>
    <message>
        <source>There is a bus configuration, but not the plug-in &apos;%1&apos;.</source>
        <translation>Eine Buskonfiguration ist da, aber nicht das Plug-in &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>a plug-in &apos;%1&apos;</source>
        <translation>ein Plug-in &apos;%1&apos;</translation>
    </message>
    <message>
        <source>The parameter file &apos;%1&apos; stands more than once.</source>
        <translation>Die Parameterdatei &apos;%1&apos; steht mehrmals.</translation>
    </message>
    <message>
        <source>The parameter file has no type.</source>
        <translation>Die Parameterdatei hat keinen Typ.</translation>
    </message>
    <message>
        <source>The type of the parameter file is left open.</source>
        <translation>Der Typ der Parameterdatei ist offen gelassen.</translation>
    </message>
    <message>
        <source>There is no type &apos;%1&apos; of parameter files; it is read as &apos;%2&apos;.</source>
        <translation>Es gibt keinen Typ &apos;%1&apos; von Parameterdateien; er wird als &apos;%2&apos; gelesen.</translation>
    </message>
    <message>
        <source>The FPGA image &apos;%1&apos; stands more than once.</source>
        <translation>Das FPGA-Abbild &apos;%1&apos; steht mehrmals.</translation>
    </message>
    <message>
        <source>The plug-in has no name.</source>
        <translation>Das Plug-in hat keinen Namen.</translation>
    </message>
    <message>
        <source>The plug-in &apos;%1&apos; stands more than once.</source>
        <translation>Das Plug-in &apos;%1&apos; steht mehrmals.</translation>
    </message>
    <message>
        <source>numbers with dots between them, like 1.3</source>
        <translation>Zahlen mit Punkten dazwischen, wie 1.3</translation>
    </message>
    <message>
        <source>The plug-in &apos;%1&apos; has no version.</source>
        <translation>Das Plug-in &apos;%1&apos; hat keine Version.</translation>
    </message>
    <message>
        <source>Its file would be &apos;%1&apos;.</source>
        <translation>Seine Datei wäre &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no version of a plug-in.</source>
        <translation>&apos;%1&apos; ist keine Version eines Plug-ins.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no priority.</source>
        <translation>&apos;%1&apos; ist keine Priorität.</translation>
    </message>
    <message>
        <source>a number from -2147483648 to 2147483647</source>
        <translation>eine Zahl von -2147483648 bis 2147483647</translation>
    </message>
    <message>
        <source>The plug-in is read without a priority.</source>
        <translation>Das Plug-in wird ohne Priorität gelesen.</translation>
    </message>
    <message>
        <source>The hardware identity &apos;%1&apos; does not fit that of the device.</source>
        <translation>Die Hardwarekennung &apos;%1&apos; passt nicht zu der des Geräts.</translation>
    </message>
    <message>
        <source>prefix, name and platform of &apos;%1&apos;</source>
        <translation>Präfix, Name und Plattform von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is passed over: the drive is of type &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; wird übergangen: Der Antrieb hat den Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Remove the file, or mend the drive&apos;s type.</source>
        <translation>Entfernen Sie die Datei, oder berichtigen Sie den Typ des Antriebs.</translation>
    </message>
    <message>
        <source>The drive has no type; it is read as &apos;%1&apos;.</source>
        <translation>Der Antrieb hat keinen Typ; er wird als &apos;%1&apos; gelesen.</translation>
    </message>
    <message>
        <source>The type of the drive is left open; it is read as &apos;%1&apos;.</source>
        <translation>Der Typ des Antriebs ist offen gelassen; er wird als &apos;%1&apos; gelesen.</translation>
    </message>
    <message>
        <source>There is no type &apos;%1&apos; of drives; the drive is read as &apos;%2&apos;.</source>
        <translation>Es gibt keinen Antriebstyp &apos;%1&apos;; der Antrieb wird als &apos;%2&apos; gelesen.</translation>
    </message>
    <message>
        <source>a number from 0 to %1</source>
        <translation>eine Zahl von 0 bis %1</translation>
    </message>
    <message>
        <source>The drive is read with the next number that no other drive has.</source>
        <translation>Der Antrieb wird mit der nächsten Nummer gelesen, die kein anderer hat.</translation>
    </message>
    <message>
        <source>The drive has no number.</source>
        <translation>Der Antrieb hat keine Nummer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number of a drive.</source>
        <translation>&apos;%1&apos; ist keine Antriebsnummer.</translation>
    </message>
    <message>
        <source>This number means that no number is assigned.</source>
        <translation>Diese Nummer bedeutet, dass keine Nummer vergeben ist.</translation>
    </message>
    <message>
        <source>The number %1 is also that of %2.</source>
        <translation>Die Nummer %1 ist auch die von %2.</translation>
    </message>
    <message>
        <source>a number of its own</source>
        <translation>eine eigene Nummer</translation>
    </message>
    <message>
        <source>The drive has no name.</source>
        <translation>Der Antrieb hat keinen Namen.</translation>
    </message>
    <message>
        <source>When the drive is read it is named after its number.</source>
        <translation>Beim Lesen wird der Antrieb nach seiner Nummer benannt.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; is also that of %2.</source>
        <translation>Der Name &apos;%1&apos; ist auch der von %2.</translation>
    </message>
    <message>
        <source>a name of its own</source>
        <translation>ein eigener Name</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no bus identifier; it is read as 0.</source>
        <translation>&apos;%1&apos; ist keine Buskennung; sie wird als 0 gelesen.</translation>
    </message>
    <message>
        <source>a number from 0 to 4294967295</source>
        <translation>eine Zahl von 0 bis 4294967295</translation>
    </message>
    <message>
        <source>The bus identifier %1 is also that of %2.</source>
        <translation>Die Buskennung %1 ist auch die von %2.</translation>
    </message>
    <message>
        <source>an identifier of its own</source>
        <translation>eine eigene Kennung</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has no directory on the device.</source>
        <translation>Die Datei &apos;%1&apos; hat kein Verzeichnis auf dem Gerät.</translation>
    </message>
    <message>
        <source>a directory below %1 or %2</source>
        <translation>ein Verzeichnis unter %1 oder %2</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>Die Datei hat keinen Namen.</translation>
    </message>
    <message>
        <source>Remove the entry if no file is meant.</source>
        <translation>Entfernen Sie den Eintrag, wenn keine Datei gemeint ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name of a file.</source>
        <translation>&apos;%1&apos; ist kein Dateiname.</translation>
    </message>
    <message>
        <source>a name without directory, slashes and line breaks</source>
        <translation>ein Name ohne Verzeichnis, Schrägstriche und Zeilenumbrüche</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; leads upwards.</source>
        <translation>Das Verzeichnis &apos;%1&apos; führt nach oben.</translation>
    </message>
    <message>
        <source>a directory without &apos;..&apos;</source>
        <translation>ein Verzeichnis ohne &apos;..&apos;</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; lies outside the device&apos;s trees.</source>
        <translation>Das Verzeichnis &apos;%1&apos; liegt außerhalb der Verzeichnisbäume des Geräts.</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; does not begin with a slash.</source>
        <translation>Das Verzeichnis &apos;%1&apos; beginnt nicht mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; belongs to the configuration &apos;%2&apos;.</source>
        <translation>Das Verzeichnis &apos;%1&apos; gehört zur Konfiguration &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>a directory of &apos;%1&apos;</source>
        <translation>ein Verzeichnis von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; is absolute.</source>
        <translation>Das Verzeichnis &apos;%1&apos; ist absolut.</translation>
    </message>
    <message>
        <source>a directory relative to the project</source>
        <translation>ein Verzeichnis relativ zum Projekt</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; leads out of the project.</source>
        <translation>Das Verzeichnis &apos;%1&apos; führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>a directory in the project</source>
        <translation>ein Verzeichnis im Projekt</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; is not below that of the device.</source>
        <translation>Das Verzeichnis &apos;%1&apos; liegt nicht unter dem des Geräts.</translation>
    </message>
    <message>
        <source>a directory below &apos;%1&apos;</source>
        <translation>ein Verzeichnis unter &apos;%1&apos;</translation>
    </message>
    <message>
        <source>It is removed when the device is read.</source>
        <translation>Es wird beim Lesen des Geräts entfernt.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; stands more than once in the same directories.</source>
        <translation>Die Datei &apos;%1&apos; steht mehrmals in denselben Verzeichnissen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has the same place on the device as that of %2.</source>
        <translation>Die Datei &apos;%1&apos; hat denselben Platz auf dem Gerät wie die von %2.</translation>
    </message>
    <message>
        <source>a place of its own</source>
        <translation>ein eigener Platz</translation>
    </message>
    <message>
        <source>The one that is transferred last overwrites the other one.</source>
        <translation>Die zuletzt übertragene überschreibt die andere.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not in the project.</source>
        <translation>Die Datei &apos;%1&apos; ist nicht im Projekt.</translation>
    </message>
    <message>
        <source>A symbolic link of that name leads to nothing.</source>
        <translation>Eine symbolische Verknüpfung dieses Namens führt ins Leere.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is called &apos;%2&apos; in the project.</source>
        <translation>Die Datei &apos;%1&apos; heißt im Projekt &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Capital and small letters matter on the device.</source>
        <translation>Auf dem Gerät zählt die Groß- und Kleinschreibung.</translation>
    </message>
    <message>
        <source>A symbolic link leads from &apos;%1&apos; out of the project.</source>
        <translation>Eine symbolische Verknüpfung führt von &apos;%1&apos; aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>a file in the project</source>
        <translation>eine Datei im Projekt</translation>
    </message>
    <message>
        <source>Whoever gets the project does not get the file.</source>
        <translation>Wer das Projekt bekommt, bekommt die Datei nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no regular file.</source>
        <translation>&apos;%1&apos; ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>a regular file</source>
        <translation>eine reguläre Datei</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be read.</source>
        <translation>Die Datei &apos;%1&apos; ist nicht lesbar.</translation>
    </message>
    <message>
        <source>a file that may be read</source>
        <translation>eine Datei, die gelesen werden darf</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is empty.</source>
        <translation>Die Datei &apos;%1&apos; ist leer.</translation>
    </message>
    <message>
        <source>0 bytes</source>
        <translation>0 Bytes</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not the one that the manifest tells.</source>
        <translation>Die Datei &apos;%1&apos; ist nicht die, die das Manifest nennt.</translation>
    </message>
    <message>
        <source>Put back the file, or make the manifest anew.</source>
        <translation>Stellen Sie die Datei wieder her, oder erzeugen Sie das Manifest neu.</translation>
    </message>
</context>
<context>
    <name>CConfigurationItems</name>
    <message>
        <source>%1: there is no such drive</source>
        <translation>%1: diesen Antrieb gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such parameter file</source>
        <translation>%1: diese Parameterdatei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such FPGA image</source>
        <translation>%1: dieses FPGA-Abbild gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such OPC UA file</source>
        <translation>%1: diese OPC-UA-Datei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such plug-in</source>
        <translation>%1: dieses Plug-in gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such option</source>
        <translation>%1: diese Option gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is such a drive already</source>
        <translation>%1: diesen Antrieb gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such a parameter file already</source>
        <translation>%1: diese Parameterdatei gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such an FPGA image already</source>
        <translation>%1: dieses FPGA-Abbild gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such an OPC UA file already</source>
        <translation>%1: diese OPC-UA-Datei gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such a plug-in already</source>
        <translation>%1: dieses Plug-in gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such an option already</source>
        <translation>%1: diese Option gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is such a file already</source>
        <translation>%1: diese Datei gibt es schon</translation>
    </message>
    <message>
        <source>%1: there is no such item</source>
        <translation>%1: diesen Eintrag gibt es nicht</translation>
    </message>
    <message>
        <source>%1: there is no such item; did you mean %2?</source>
        <translation>%1: diesen Eintrag gibt es nicht; meinten Sie %2?</translation>
    </message>
    <message>
        <source>%1: there is no such item; there are %2</source>
        <translation>%1: diesen Eintrag gibt es nicht; es gibt %2</translation>
    </message>
    <message>
        <source>%1: an entry of the list must be named, as in %2</source>
        <translation>%1: ein Element der Liste muss genannt werden, wie in %2</translation>
    </message>
    <message>
        <source>%1: only a drive of the type KD2_drive has this file</source>
        <translation>%1: nur ein Antrieb vom Typ KD2_drive hat diese Datei</translation>
    </message>
    <message>
        <source>%1: %2 is no list, nothing can stand in brackets behind it</source>
        <translation>%1: %2 ist keine Liste, dahinter kann nichts in Klammern stehen</translation>
    </message>
    <message>
        <source>There is no configuration.</source>
        <translation>Es gibt keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1: the character U+%2 cannot be stored in a configuration</source>
        <translation>%1: das Zeichen U+%2 kann in einer Konfiguration nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1: the words of an argument are separated by single blanks</source>
        <translation>%1: die Wörter eines Arguments sind durch einzelne Leerzeichen getrennt</translation>
    </message>
    <message>
        <source>%1: in &apos;%2&apos; a word begins with &apos;-&apos;, which would be an option</source>
        <translation>%1: in &apos;%2&apos; beginnt ein Wort mit &apos;-&apos;, was eine Option wäre</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no drive number; one is a number from 0 to %3</source>
        <translation>%1: &apos;%2&apos; ist keine Antriebsnummer; das ist eine Zahl von 0 bis %3</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no option; one is a word that begins with &apos;-&apos;</source>
        <translation>%1: &apos;%2&apos; ist keine Option; das ist ein Wort, das mit &apos;-&apos; beginnt</translation>
    </message>
    <message>
        <source>%1: a name must not be empty</source>
        <translation>%1: ein Name darf nicht leer sein</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no date; one is written as 2026-11-21</source>
        <translation>%1: &apos;%2&apos; ist kein Datum; das schreibt man wie 2026-11-21</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no device class; there are kc2, kd3 and Undefined</source>
        <translation>%1: &apos;%2&apos; ist keine Geräteklasse; es gibt kc2, kd3 und Undefined</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no hardware identity; one is written as PREFIX:NAME:PLATFORM:VERSION:REVISION</source>
        <translation>%1: &apos;%2&apos; ist keine Hardwarekennung; das schreibt man wie PREFIX:NAME:PLATFORM:VERSION:REVISION</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is neither true nor false</source>
        <translation>%1: &apos;%2&apos; ist weder true noch false</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no whole number from 0 to 4294967295</source>
        <translation>%1: &apos;%2&apos; ist keine ganze Zahl von 0 bis 4294967295</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no whole number from -2147483648 to 2147483647</source>
        <translation>%1: &apos;%2&apos; ist keine ganze Zahl von -2147483648 bis 2147483647</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no type of parameter files</source>
        <translation>%1: &apos;%2&apos; ist kein Typ von Parameterdateien</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is no type of drives; there are KD2_drive and KD3_drive</source>
        <translation>%1: &apos;%2&apos; ist kein Antriebstyp; es gibt KD2_drive und KD3_drive</translation>
    </message>
    <message>
        <source>%1: this has no value of its own</source>
        <translation>%1: dies hat keinen eigenen Wert</translation>
    </message>
    <message>
        <source>%1: the configuration does not have it</source>
        <translation>%1: die Konfiguration hat das nicht</translation>
    </message>
    <message>
        <source>%1: only entries of lists can be added</source>
        <translation>%1: nur Elemente von Listen können hinzugefügt werden</translation>
    </message>
    <message>
        <source>%1: a second entry of the same key cannot be added</source>
        <translation>%1: ein zweites Element mit demselben Schlüssel kann nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>%1: only single items, entries and files can be removed</source>
        <translation>%1: nur einzelne Einträge, Listenelemente und Dateien können entfernt werden</translation>
    </message>
    <message>
        <source>%1: the entry cannot be without it</source>
        <translation>%1: das Listenelement kann nicht ohne dies sein</translation>
    </message>
    <message>
        <source>a &apos;.&apos; is missing</source>
        <translation>ein &apos;.&apos; fehlt</translation>
    </message>
    <message>
        <source>a word is missing</source>
        <translation>ein Wort fehlt</translation>
    </message>
    <message>
        <source>a &apos;]&apos; is missing</source>
        <translation>ein &apos;]&apos; fehlt</translation>
    </message>
    <message>
        <source>only &apos;]&apos; and &apos;\&apos; can stand behind a &apos;\&apos;</source>
        <translation>nur &apos;]&apos; und &apos;\&apos; können hinter einem &apos;\&apos; stehen</translation>
    </message>
    <message>
        <source>behind a key only a number from 2 on can stand in brackets</source>
        <translation>hinter einem Schlüssel kann in Klammern nur eine Zahl ab 2 stehen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no path: %2 at character %3</source>
        <translation>&apos;%1&apos; ist kein Pfad: %2 bei Zeichen %3</translation>
    </message>
</context>
<context>
    <name>CConfigurationMerge</name>
    <message>
        <source>%1: %2: base %3, ours %4, theirs %5</source>
        <translation>%1: %2: Grundlage %3, unsere Seite %4, andere Seite %5</translation>
    </message>
    <message>
        <source>%1: removed by ours, but changed by theirs</source>
        <translation>%1: von unserer Seite entfernt, aber von der anderen geändert</translation>
    </message>
    <message>
        <source>%1: changed by ours, but removed by theirs</source>
        <translation>%1: von unserer Seite geändert, aber von der anderen entfernt</translation>
    </message>
    <message>
        <source>%1: what theirs changed cannot be stored</source>
        <translation>%1: was die andere Seite geändert hat, kann nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>CConfigurationPatch</name>
    <message>
        <source>This is not JSON: %1, at byte %2.</source>
        <translation>Dies ist kein JSON: %1, bei Byte %2.</translation>
    </message>
    <message>
        <source>This is not a patch: &quot;%1&quot; is not &quot;%2&quot;.</source>
        <translation>Dies ist keine Änderungsdatei: &quot;%1&quot; ist nicht &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>This patch has another version than %1, which can be read.</source>
        <translation>Diese Änderungsdatei hat eine andere Version als %1, die gelesen werden kann.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing.</source>
        <translation>&quot;%1&quot; fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array.</source>
        <translation>&quot;%1&quot; ist keine Liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a text.</source>
        <translation>&quot;%1&quot; ist kein Text.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown.</source>
        <translation>&quot;%1&quot; ist unbekannt.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Änderung %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed before.</source>
        <translation>&quot;%1&quot; wurde schon geändert.</translation>
    </message>
    <message>
        <source>This is not an object.</source>
        <translation>Dies ist kein Objekt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; tells no change that is known.</source>
        <translation>&quot;%1&quot; nennt keine bekannte Änderung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no path.</source>
        <translation>&quot;%1&quot; ist kein Pfad.</translation>
    </message>
    <message>
        <source>The item &quot;%1&quot; is told twice.</source>
        <translation>Der Eintrag &quot;%1&quot; ist zweimal genannt.</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>There is no configuration.</source>
        <translation>Es gibt keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1: %2 is %3, but %4 is expected.</source>
        <translation>%1: %2 ist %3, erwartet wird aber %4.</translation>
    </message>
    <message>
        <source>%1 is not there.</source>
        <translation>%1 ist nicht da.</translation>
    </message>
    <message>
        <source>%1 is there already.</source>
        <translation>%1 ist schon da.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no path.</source>
        <translation>&apos;%1&apos; ist kein Pfad.</translation>
    </message>
    <message>
        <source>option %1</source>
        <translation>Option %1</translation>
    </message>
    <message>
        <source>parameter file %1</source>
        <translation>Parameterdatei %1</translation>
    </message>
    <message>
        <source>FPGA image %1</source>
        <translation>FPGA-Abbild %1</translation>
    </message>
    <message>
        <source>OPC UA file %1</source>
        <translation>OPC-UA-Datei %1</translation>
    </message>
    <message>
        <source>plug-in %1</source>
        <translation>Plug-in %1</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>Antrieb %1</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
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
        <source>EtherCAT master file</source>
        <translation>Datei des EtherCAT-Masters</translation>
    </message>
    <message>
        <source>parameter file</source>
        <translation>Parameterdatei</translation>
    </message>
    <message>
        <source>KD2 parameter file</source>
        <translation>KD2-Parameterdatei</translation>
    </message>
    <message>
        <source>KD2 logic</source>
        <translation>KD2-Logik</translation>
    </message>
    <message>
        <source>KD2 firmware</source>
        <translation>KD2-Firmware</translation>
    </message>
    <message>
        <source>argument</source>
        <translation>Argument</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>creation date</source>
        <translation>Erstellungsdatum</translation>
    </message>
    <message>
        <source>revision date</source>
        <translation>Überarbeitungsdatum</translation>
    </message>
    <message>
        <source>class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>hardware identity</source>
        <translation>Hardwarekennung</translation>
    </message>
    <message>
        <source>configuration name</source>
        <translation>Konfigurationsname</translation>
    </message>
    <message>
        <source>execution plug-in</source>
        <translation>Plug-in der Anwendung</translation>
    </message>
    <message>
        <source>OPC UA enabled</source>
        <translation>OPC UA eingeschaltet</translation>
    </message>
    <message>
        <source>active FPGA image</source>
        <translation>aktives FPGA-Abbild</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>bus identifier</source>
        <translation>Buskennung</translation>
    </message>
    <message>
        <source>priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>device directory</source>
        <translation>Verzeichnis auf dem Gerät</translation>
    </message>
    <message>
        <source>project directory</source>
        <translation>Verzeichnis im Projekt</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>CConfigurationReport</name>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Parameter values</source>
        <translation>Parameterwerte</translation>
    </message>
    <message>
        <source>Parameter definition</source>
        <translation>Parameterdefinition</translation>
    </message>
    <message>
        <source>Object dictionary</source>
        <translation>Objektverzeichnis</translation>
    </message>
    <message>
        <source>Fault texts</source>
        <translation>Fehlertexte</translation>
    </message>
    <message>
        <source>Additional file</source>
        <translation>Zusätzliche Datei</translation>
    </message>
    <message>
        <source>Plug-in</source>
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
        <source>EtherCAT bus configuration</source>
        <translation>EtherCAT-Buskonfiguration</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Logik</translation>
    </message>
    <message>
        <source>Parameters of the drive itself</source>
        <translation>Parameter des Antriebs selbst</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that these texts are translated into, as &quot;de&quot; or &quot;pt-BR&quot;.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Made from the configuration alone; nothing is loaded when this page is opened.</source>
        <translation>Allein aus der Konfiguration erzeugt; beim Öffnen dieser Seite wird nichts geladen.</translation>
    </message>
    <message>
        <source>Configuration without a name</source>
        <translation>Konfiguration ohne Namen</translation>
    </message>
    <message>
        <source>%1 – configuration report</source>
        <translation>%1 – Konfigurationsbericht</translation>
    </message>
    <message>
        <source>Configuration report</source>
        <translation>Konfigurationsbericht</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Files of the device</source>
        <translation>Dateien des Geräts</translation>
    </message>
    <message>
        <source>Start options</source>
        <translation>Startoptionen</translation>
    </message>
    <message>
        <source>Sections of this page</source>
        <translation>Abschnitte dieser Seite</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Nothing was found that is wrong or should be looked at.</source>
        <translation>Es wurde nichts gefunden, was falsch ist oder angesehen werden sollte.</translation>
    </message>
    <message>
        <source>Further findings: %1</source>
        <translation>Weitere Befunde: %1</translation>
    </message>
    <message>
        <source>The configuration as a whole</source>
        <translation>Die Konfiguration insgesamt</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Found:</source>
        <translation>Gefunden:</translation>
    </message>
    <message>
        <source>Expected:</source>
        <translation>Erwartet:</translation>
    </message>
    <message>
        <source>Hint:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>No bus id</source>
        <translation>Keine Buskennung</translation>
    </message>
    <message>
        <source>Bus id %1</source>
        <translation>Buskennung %1</translation>
    </message>
    <message>
        <source>Drive %1: %2, series %3. %4.</source>
        <translation>Antrieb %1: %2, Baureihe %3. %4.</translation>
    </message>
    <message>
        <source>Drive %1: %2, series %3. %4. It has errors.</source>
        <translation>Antrieb %1: %2, Baureihe %3. %4. Er hat Fehler.</translation>
    </message>
    <message>
        <source>Drive %1: %2, series %3. %4. It has warnings.</source>
        <translation>Antrieb %1: %2, Baureihe %3. %4. Er hat Warnungen.</translation>
    </message>
    <message>
        <source>Device %1. Drives on its bus: %2.</source>
        <translation>Gerät %1. Antriebe an seinem Bus: %2.</translation>
    </message>
    <message>
        <source>Class %1</source>
        <translation>Klasse %1</translation>
    </message>
    <message>
        <source>No drives</source>
        <translation>Keine Antriebe</translation>
    </message>
    <message>
        <source>The device and its drives</source>
        <translation>Das Gerät und seine Antriebe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Platform, version, revision</source>
        <translation>Plattform, Version, Revision</translation>
    </message>
    <message>
        <source>Hardware identity</source>
        <translation>Hardwarekennung</translation>
    </message>
    <message>
        <source>Configuration name</source>
        <translation>Konfigurationsname</translation>
    </message>
    <message>
        <source>Version of the configuration</source>
        <translation>Version der Konfiguration</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Last revision</source>
        <translation>Letzte Überarbeitung</translation>
    </message>
    <message>
        <source>Written by</source>
        <translation>Geschrieben von</translation>
    </message>
    <message>
        <source>Written on</source>
        <translation>Geschrieben am</translation>
    </message>
    <message>
        <source>The device has no drives.</source>
        <translation>Das Gerät hat keine Antriebe.</translation>
    </message>
    <message>
        <source>Bus id</source>
        <translation>Buskennung</translation>
    </message>
    <message>
        <source>Object dictionary, fault texts, bus configuration</source>
        <translation>Objektverzeichnis, Fehlertexte, Buskonfiguration</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Parameter files</source>
        <translation>Parameterdateien</translation>
    </message>
    <message>
        <source>FPGA images</source>
        <translation>FPGA-Abbilder</translation>
    </message>
    <message>
        <source>OPC UA models</source>
        <translation>OPC-UA-Modelle</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <source>Additional files</source>
        <translation>Zusätzliche Dateien</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>On the device</source>
        <translation>Auf dem Gerät</translation>
    </message>
    <message>
        <source>In the project</source>
        <translation>Im Projekt</translation>
    </message>
    <message>
        <source>The device has no plug-ins.</source>
        <translation>Das Gerät hat keine Plug-ins.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Runs the application</source>
        <translation>Führt die Anwendung aus</translation>
    </message>
    <message>
        <source>The device starts without options.</source>
        <translation>Das Gerät startet ohne Optionen.</translation>
    </message>
</context>
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
    <name>CDeviceManifest</name>
    <message>
        <source>The key &quot;%1&quot; is missing.</source>
        <translation>Der Schlüssel &quot;%1&quot; fehlt.</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; is unknown.</source>
        <translation>Der Schlüssel &quot;%1&quot; ist unbekannt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no path on a device.</source>
        <translation>&quot;%1&quot; ist kein Pfad auf einem Gerät.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no path in a project, but &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; hat keinen Pfad in einem Projekt, sondern &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The size of &quot;%1&quot; is none.</source>
        <translation>Die Größe von &quot;%1&quot; ist keine.</translation>
    </message>
    <message>
        <source>The sum of &quot;%1&quot; is none.</source>
        <translation>Die Prüfsumme von &quot;%1&quot; ist keine.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there twice.</source>
        <translation>&quot;%1&quot; ist zweimal da.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is both a file and a directory.</source>
        <translation>&quot;%1&quot; ist sowohl eine Datei als auch ein Verzeichnis.</translation>
    </message>
    <message>
        <source>This is no manifest of a device tree.</source>
        <translation>Dies ist kein Manifest eines Gerätebaums.</translation>
    </message>
    <message>
        <source>This is a manifest of another version than %1.</source>
        <translation>Dies ist ein Manifest einer anderen Version als %1.</translation>
    </message>
    <message>
        <source>The directories and the files are no lists.</source>
        <translation>Die Verzeichnisse und die Dateien sind keine Listen.</translation>
    </message>
    <message>
        <source>This is no JSON: %1.</source>
        <translation>Dies ist kein JSON: %1.</translation>
    </message>
    <message>
        <source>The manifest has been changed: it is not in the form in which manifests are written.</source>
        <translation>Das Manifest wurde verändert: Es hat nicht die Form, in der Manifeste geschrieben werden.</translation>
    </message>
    <message>
        <source>This is no regular file.</source>
        <translation>Dies ist keine reguläre Datei.</translation>
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
    <name>CStagedTree</name>
    <message>
        <source>There is nothing to be made.</source>
        <translation>Es gibt nichts zu erzeugen.</translation>
    </message>
    <message>
        <source>There is no place for the tree.</source>
        <translation>Es gibt keinen Platz für den Baum.</translation>
    </message>
    <message>
        <source>This is neither a directory nor a regular file.</source>
        <translation>Dies ist weder ein Verzeichnis noch eine reguläre Datei.</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>It ends too early.</source>
        <translation>Es endet zu früh.</translation>
    </message>
    <message>
        <source>This is no tar archive that is compressed by gzip.</source>
        <translation>Dies ist kein mit gzip komprimiertes tar-Archiv.</translation>
    </message>
    <message>
        <source>%1 has holes, or ends too early.</source>
        <translation>%1 hat Lücken oder endet zu früh.</translation>
    </message>
    <message>
        <source>The check sum of the archive is wrong.</source>
        <translation>Die Prüfsumme des Archivs ist falsch.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>There are too many differences.</source>
        <translation>Es gibt zu viele Unterschiede.</translation>
    </message>
    <message>
        <source>The archive is broken: %1</source>
        <translation>Das Archiv ist beschädigt: %1</translation>
    </message>
    <message>
        <source>%1 is in the archive twice.</source>
        <translation>%1 ist zweimal im Archiv.</translation>
    </message>
    <message>
        <source>%1 is not in the manifest.</source>
        <translation>%1 steht nicht im Manifest.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be on a device.</source>
        <translation>&quot;%1&quot; kann nicht auf einem Gerät sein.</translation>
    </message>
    <message>
        <source>%1 is no directory.</source>
        <translation>%1 ist kein Verzeichnis.</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>%1 ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>%1 has changed.</source>
        <translation>%1 hat sich geändert.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>This is no regular file.</source>
        <translation>Dies ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>There is no %1 in the archive.</source>
        <translation>Im Archiv gibt es kein %1.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 is no device tree that can be replaced: %2</source>
        <translation>%1 ist kein Gerätebaum, der ersetzt werden kann: %2</translation>
    </message>
    <message>
        <source>%1 holds more than a device tree and cannot be replaced: %2</source>
        <translation>%1 enthält mehr als einen Gerätebaum und kann nicht ersetzt werden: %2</translation>
    </message>
    <message>
        <source>It would lie in the tree.</source>
        <translation>Es läge innerhalb des Baums.</translation>
    </message>
    <message>
        <source>It belongs to the project.</source>
        <translation>Es gehört zum Projekt.</translation>
    </message>
    <message>
        <source>%1 changed while it was copied.</source>
        <translation>%1 hat sich während des Kopierens geändert.</translation>
    </message>
    <message>
        <source>%1; everything is in place, but a power cut may undo it</source>
        <translation>%1; alles ist an seinem Platz, aber ein Stromausfall kann es rückgängig machen</translation>
    </message>
    <message>
        <source>%1 is there already, and is not empty.</source>
        <translation>%1 ist schon da und nicht leer.</translation>
    </message>
</context>
<context>
    <name>CStagingPlan</name>
    <message>
        <source>The project directory %1 cannot be found: %2</source>
        <translation>Das Projektverzeichnis %1 ist nicht zu finden: %2</translation>
    </message>
    <message>
        <source>%1 would be both a file and a directory on the device.</source>
        <translation>%1 wäre auf dem Gerät sowohl eine Datei als auch ein Verzeichnis.</translation>
    </message>
    <message>
        <source>The device has no configuration name, which the directories on the device are named after.</source>
        <translation>Das Gerät hat keinen Konfigurationsnamen, nach dem die Verzeichnisse auf dem Gerät benannt sind.</translation>
    </message>
    <message>
        <source>The configuration name &quot;%1&quot; cannot be that of a directory.</source>
        <translation>Der Konfigurationsname &quot;%1&quot; kann nicht der eines Verzeichnisses sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a file.</source>
        <translation>&quot;%1&quot; kann nicht der Name einer Datei sein.</translation>
    </message>
    <message>
        <source>%1 has no directory on the device.</source>
        <translation>%1 hat kein Verzeichnis auf dem Gerät.</translation>
    </message>
    <message>
        <source>%1 lies in none of the device&apos;s directories.</source>
        <translation>%1 liegt in keinem der Verzeichnisse des Geräts.</translation>
    </message>
    <message>
        <source>%1 is not in the project.</source>
        <translation>%1 ist nicht im Projekt.</translation>
    </message>
    <message>
        <source>%1 leads out of the project.</source>
        <translation>%1 führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>%1 is no regular file.</source>
        <translation>%1 ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>%1 and another file both go to %2.</source>
        <translation>%1 und eine andere Datei kommen beide nach %2.</translation>
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
