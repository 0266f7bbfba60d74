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
        <source>%1: The directory does not exist.</source>
        <translation>%1: Das Verzeichnis existiert nicht.</translation>
    </message>
    <message>
        <source>The document has no device.</source>
        <translation>Das Dokument enthält kein Gerät.</translation>
    </message>
    <message>
        <source>an element &apos;%1&apos;</source>
        <translation>ein Element &apos;%1&apos;</translation>
    </message>
    <message>
        <source>A configuration without a device cannot be commissioned.</source>
        <translation>Eine Konfiguration ohne Gerät kann nicht in Betrieb genommen werden.</translation>
    </message>
    <message>
        <source>The revision date is earlier than the creation date.</source>
        <translation>Das Überarbeitungsdatum liegt vor dem Erstellungsdatum.</translation>
    </message>
    <message>
        <source>%1 or later</source>
        <translation>%1 oder später</translation>
    </message>
    <message>
        <source>The device has no name.</source>
        <translation>Das Gerät hat keinen Namen.</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>The directory of the device in the project has the same name.</source>
        <translation>Das Verzeichnis des Geräts im Projekt heißt ebenso.</translation>
    </message>
    <message>
        <source>The device has no configuration block.</source>
        <translation>Das Gerät hat keinen Konfigurationsblock.</translation>
    </message>
    <message>
        <source>The device is read without options, files or plug-ins.</source>
        <translation>Das Gerät wird ohne Optionen, Dateien und Plug-ins gelesen.</translation>
    </message>
    <message>
        <source>The configuration name is missing.</source>
        <translation>Der Konfigurationsname fehlt.</translation>
    </message>
    <message>
        <source>It is read as &apos;%1&apos;.</source>
        <translation>Gelesen wird &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is ignored: the type of the drive is &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; wird ignoriert: Der Antrieb hat den Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Remove the file, or correct the type of the drive.</source>
        <translation>Entfernen Sie die Datei, oder berichtigen Sie den Typ des Antriebs.</translation>
    </message>
    <message>
        <source>The hardware identity &apos;%1&apos; does not match that of the device.</source>
        <translation>Die Hardwarekennung &apos;%1&apos; passt nicht zu der des Geräts.</translation>
    </message>
    <message>
        <source>prefix, name and platform of &apos;%1&apos;</source>
        <translation>Präfix, Name und Plattform von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>The drive number %1 is already used by %2.</source>
        <translation>Die Antriebsnummer %1 ist schon durch %2 belegt.</translation>
    </message>
    <message>
        <source>a unique number</source>
        <translation>eine eindeutige Nummer</translation>
    </message>
    <message>
        <source>The drive has no name.</source>
        <translation>Der Antrieb hat keinen Namen.</translation>
    </message>
    <message>
        <source>The drive is read with a name made from its number.</source>
        <translation>Der Antrieb wird mit einem Namen gelesen, der aus seiner Nummer gebildet ist.</translation>
    </message>
    <message>
        <source>The name &apos;%1&apos; is already used by %2.</source>
        <translation>Der Name &apos;%1&apos; ist schon durch %2 belegt.</translation>
    </message>
    <message>
        <source>a unique name</source>
        <translation>ein eindeutiger Name</translation>
    </message>
    <message>
        <source>The bus identifier %1 is already used by %2.</source>
        <translation>Die Buskennung %1 ist schon durch %2 belegt.</translation>
    </message>
    <message>
        <source>a unique bus identifier</source>
        <translation>eine eindeutige Buskennung</translation>
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
        <source>The directory &apos;%1&apos; is not below the directory of the device.</source>
        <translation>Das Verzeichnis &apos;%1&apos; liegt nicht unter dem Verzeichnis des Geräts.</translation>
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
        <source>The file &apos;%1&apos; is listed more than once with the same directories.</source>
        <translation>Die Datei &apos;%1&apos; ist mehrmals mit denselben Verzeichnissen aufgeführt.</translation>
    </message>
    <message>
        <source>Remove all but one.</source>
        <translation>Entfernen Sie alle bis auf eines.</translation>
    </message>
    <message>
        <source>The parameter file &apos;%1&apos; is listed more than once.</source>
        <translation>Die Parameterdatei &apos;%1&apos; ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>The FPGA image &apos;%1&apos; is listed more than once.</source>
        <translation>Das FPGA-Abbild &apos;%1&apos; ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>Remove all but one; the first image is the active one.</source>
        <translation>Entfernen Sie alle bis auf eines; das erste Abbild ist das aktive.</translation>
    </message>
    <message>
        <source>Too many findings; the remaining ones are left out.</source>
        <translation>Zu viele Befunde; die übrigen werden weggelassen.</translation>
    </message>
    <message>
        <source>Correct the reported findings, then check again.</source>
        <translation>Beheben Sie die gemeldeten Befunde, und prüfen Sie dann erneut.</translation>
    </message>
    <message>
        <source>The manifest of the project cannot be read: %1</source>
        <translation>Das Manifest des Projekts ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>a manifest written by staging</source>
        <translation>ein Manifest, das beim Bereitstellen geschrieben wird</translation>
    </message>
    <message>
        <source>Create the manifest again; the files are not compared with this one.</source>
        <translation>Erzeugen Sie das Manifest neu; mit diesem werden die Dateien nicht verglichen.</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; differs from the manifest.</source>
        <translation>Die Datei &apos;%1&apos; weicht vom Manifest ab.</translation>
    </message>
    <message>
        <source>Restore the file, or create the manifest again.</source>
        <translation>Stellen Sie die Datei wieder her, oder erzeugen Sie das Manifest neu.</translation>
    </message>
    <message>
        <source>options such as -trace, separated by single spaces</source>
        <translation>Optionen wie -trace, durch einzelne Leerzeichen getrennt</translation>
    </message>
    <message>
        <source>Options are separated by something other than a space.</source>
        <translation>Optionen sind durch etwas anderes als ein Leerzeichen getrennt.</translation>
    </message>
    <message>
        <source>The device reads this as one word.</source>
        <translation>Das Gerät liest dies als ein Wort.</translation>
    </message>
    <message>
        <source>An option has a hyphen but no name.</source>
        <translation>Eine Option hat einen Bindestrich, aber keinen Namen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither an option nor the value of one.</source>
        <translation>&apos;%1&apos; ist weder eine Option noch der Wert einer Option.</translation>
    </message>
    <message>
        <source>An option begins with a hyphen; the words after it are its argument.</source>
        <translation>Eine Option beginnt mit einem Bindestrich; die Wörter danach sind ihr Argument.</translation>
    </message>
    <message>
        <source>The option &apos;%1&apos; occurs more than once.</source>
        <translation>Die Option &apos;%1&apos; kommt mehrmals vor.</translation>
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
        <source>The option %1 is present, but the OPC UA server is not enabled.</source>
        <translation>Die Option %1 ist vorhanden, aber der OPC-UA-Server ist nicht eingeschaltet.</translation>
    </message>
    <message>
        <source>Enable the server, or remove the option %1.</source>
        <translation>Schalten Sie den Server ein, oder entfernen Sie die Option %1.</translation>
    </message>
    <message>
        <source>The plug-in has no name.</source>
        <translation>Das Plug-in hat keinen Namen.</translation>
    </message>
    <message>
        <source>The plug-in &apos;%1&apos; is listed more than once.</source>
        <translation>Das Plug-in &apos;%1&apos; ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>The execution plug-in &apos;%1&apos; is not in the list of plug-ins.</source>
        <translation>Das Plug-in der Anwendung &apos;%1&apos; ist nicht in der Liste der Plug-ins.</translation>
    </message>
    <message>
        <source>the name of a plug-in</source>
        <translation>der Name eines Plug-ins</translation>
    </message>
    <message>
        <source>Add the plug-in, or choose another one.</source>
        <translation>Fügen Sie das Plug-in hinzu, oder wählen Sie ein anderes.</translation>
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
        <source>The bus configuration needs the plug-in &apos;%1&apos;, which is missing.</source>
        <translation>Die Buskonfiguration braucht das Plug-in &apos;%1&apos;, das fehlt.</translation>
    </message>
    <message>
        <source>a plug-in &apos;%1&apos;</source>
        <translation>ein Plug-in &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; contains text, which is ignored.</source>
        <translation>&apos;%1&apos; enthält Text, der ignoriert wird.</translation>
    </message>
    <message>
        <source>only elements</source>
        <translation>nur Elemente</translation>
    </message>
    <message>
        <source>Remove the text, or move it into the element for which it is meant.</source>
        <translation>Entfernen Sie den Text, oder verschieben Sie ihn in das Element, für das er gedacht ist.</translation>
    </message>
    <message>
        <source>Unknown attribute &apos;%2&apos; of the element &apos;%1&apos;; it is ignored.</source>
        <translation>Unbekanntes Attribut &apos;%2&apos; des Elements &apos;%1&apos;; es wird ignoriert.</translation>
    </message>
    <message>
        <source>Remove the attribute.</source>
        <translation>Entfernen Sie das Attribut.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; occurs more than once in &apos;%2&apos;; only the first one is read.</source>
        <translation>&apos;%1&apos; kommt mehrmals in &apos;%2&apos; vor; nur das erste wird gelesen.</translation>
    </message>
    <message>
        <source>one &apos;%1&apos;</source>
        <translation>ein &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not belong in &apos;%2&apos;; it is ignored.</source>
        <translation>&apos;%1&apos; gehört nicht in &apos;%2&apos;; es wird ignoriert.</translation>
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
        <source>Unknown element &apos;%1&apos;; it is ignored.</source>
        <translation>Unbekanntes Element &apos;%1&apos;; es wird ignoriert.</translation>
    </message>
    <message>
        <source>only text</source>
        <translation>nur Text</translation>
    </message>
    <message>
        <source>Remove the element, or correct its name.</source>
        <translation>Entfernen Sie das Element, oder berichtigen Sie seinen Namen.</translation>
    </message>
    <message>
        <source>The drive is read with the next free number.</source>
        <translation>Der Antrieb wird mit der nächsten freien Nummer gelesen.</translation>
    </message>
    <message>
        <source>The last three are numbers from 0 to 65535; an invalid hardware identity is read as empty.</source>
        <translation>Die letzten drei sind Zahlen von 0 bis 65535; eine ungültige Hardwarekennung wird als leer gelesen.</translation>
    </message>
    <message>
        <source>The plug-in is read without a priority.</source>
        <translation>Das Plug-in wird ohne Priorität gelesen.</translation>
    </message>
    <message>
        <source>The device class is missing.</source>
        <translation>Die Geräteklasse fehlt.</translation>
    </message>
    <message>
        <source>The device class is &apos;Undefined&apos;.</source>
        <translation>Die Geräteklasse ist &apos;Undefined&apos;.</translation>
    </message>
    <message>
        <source>The parameter file has no type.</source>
        <translation>Die Parameterdatei hat keinen Typ.</translation>
    </message>
    <message>
        <source>The type of the parameter file is &apos;Undefined&apos;.</source>
        <translation>Der Typ der Parameterdatei ist &apos;Undefined&apos;.</translation>
    </message>
    <message>
        <source>The drive has no type.</source>
        <translation>Der Antrieb hat keinen Typ.</translation>
    </message>
    <message>
        <source>The type of the drive is undefined.</source>
        <translation>Der Typ des Antriebs ist nicht festgelegt.</translation>
    </message>
    <message>
        <source>The drive number is missing.</source>
        <translation>Die Antriebsnummer fehlt.</translation>
    </message>
    <message>
        <source>255 means that no number is assigned: the drive is read with the next free number.</source>
        <translation>255 bedeutet, dass keine Nummer vergeben ist: Der Antrieb wird mit der nächsten freien Nummer gelesen.</translation>
    </message>
    <message>
        <source>The document is read as version %1; save it again with this version.</source>
        <translation>Das Dokument wird als Version %1 gelesen; sichern Sie es erneut mit dieser Version.</translation>
    </message>
    <message>
        <source>The version of the document is missing.</source>
        <translation>Die Version des Dokuments fehlt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid version.</source>
        <translation>&apos;%1&apos; ist keine gültige Version.</translation>
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
        <source>letters, digits, &apos;_&apos;, &apos;-&apos; and &apos;+&apos;; a number in parentheses may follow</source>
        <translation>Buchstaben, Ziffern, &apos;_&apos;, &apos;-&apos; und &apos;+&apos;; eine Zahl in Klammern darf folgen</translation>
    </message>
    <message>
        <source>The configuration name is empty.</source>
        <translation>Der Konfigurationsname ist leer.</translation>
    </message>
    <message>
        <source>The directories on the device are named after it.</source>
        <translation>Die Verzeichnisse auf dem Gerät werden nach ihm benannt.</translation>
    </message>
    <message>
        <source>The configuration name &apos;%1&apos; is reserved by the device.</source>
        <translation>Der Konfigurationsname &apos;%1&apos; ist vom Gerät reserviert.</translation>
    </message>
    <message>
        <source>a name without &apos;setup&apos;, &apos;failsafe&apos; and &apos;mount error&apos;</source>
        <translation>ein Name ohne &apos;setup&apos;, &apos;failsafe&apos; und &apos;mount error&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid configuration name.</source>
        <translation>&apos;%1&apos; ist kein gültiger Konfigurationsname.</translation>
    </message>
    <message>
        <source>numbers separated by dots, such as 1.3</source>
        <translation>Zahlen, durch Punkte getrennt, wie 1.3</translation>
    </message>
    <message>
        <source>The file name of the plug-in would be &apos;%1&apos;.</source>
        <translation>Der Dateiname des Plug-ins wäre &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The plug-in &apos;%1&apos; has no version.</source>
        <translation>Das Plug-in &apos;%1&apos; hat keine Version.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid plug-in version.</source>
        <translation>&apos;%1&apos; ist keine gültige Version eines Plug-ins.</translation>
    </message>
    <message>
        <source>The document is read as version 1.0; add &apos;version=&quot;1.0&quot;&apos; to its first element, or save it with a tool.</source>
        <translation>Das Dokument wird als Version 1.0 gelesen; ergänzen Sie &apos;version=&quot;1.0&quot;&apos; in seinem ersten Element, oder sichern Sie es mit einem Werkzeug.</translation>
    </message>
    <message>
        <source>The version of the document is not valid.</source>
        <translation>Die Version des Dokuments ist ungültig.</translation>
    </message>
    <message>
        <source>A version consists of one to three numbers separated by dots; the document is read as version 1.0.</source>
        <translation>Eine Version besteht aus einer bis drei Zahlen, durch Punkte getrennt; das Dokument wird als Version 1.0 gelesen.</translation>
    </message>
    <message>
        <source>The document was created with a previous or a later version.</source>
        <translation>Das Dokument wurde mit einer früheren oder späteren Version erstellt.</translation>
    </message>
    <message>
        <source>The document is read as version 1.0. Check that this version knows everything in it, then save it again.</source>
        <translation>Das Dokument wird als Version 1.0 gelesen. Prüfen Sie, ob diese Version alles darin kennt, und sichern Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Unknown element.</source>
        <translation>Unbekanntes Element.</translation>
    </message>
    <message>
        <source>Correct the name, or remove the element. Names are case-sensitive.</source>
        <translation>Berichtigen Sie den Namen, oder entfernen Sie das Element. Bei Namen wird zwischen Groß- und Kleinschreibung unterschieden.</translation>
    </message>
    <message>
        <source>The element is in the wrong place and is ignored.</source>
        <translation>Das Element steht an der falschen Stelle und wird ignoriert.</translation>
    </message>
    <message>
        <source>Move the element to the place that the finding names.</source>
        <translation>Verschieben Sie das Element an die Stelle, die der Befund nennt.</translation>
    </message>
    <message>
        <source>The element occurs more than once; only the first one is read.</source>
        <translation>Das Element kommt mehrmals vor; gelesen wird nur das erste.</translation>
    </message>
    <message>
        <source>Keep the element that is meant, and remove the others.</source>
        <translation>Behalten Sie das gemeinte Element, und entfernen Sie die anderen.</translation>
    </message>
    <message>
        <source>Unknown attribute.</source>
        <translation>Unbekanntes Attribut.</translation>
    </message>
    <message>
        <source>Remove the attribute, or correct its name. Names that belong to XML itself, such as &apos;xmlns&apos; and &apos;xml:lang&apos;, are not reported.</source>
        <translation>Entfernen Sie das Attribut, oder berichtigen Sie seinen Namen. Namen, die zu XML selbst gehören, wie &apos;xmlns&apos; und &apos;xml:lang&apos;, werden nicht gemeldet.</translation>
    </message>
    <message>
        <source>Unexpected text between elements; it is ignored.</source>
        <translation>Unerwarteter Text zwischen Elementen; er wird ignoriert.</translation>
    </message>
    <message>
        <source>The date is not valid.</source>
        <translation>Das Datum ist ungültig.</translation>
    </message>
    <message>
        <source>Write year, month and day: &apos;2026-09-14&apos;. An empty date is allowed and means that no date is set.</source>
        <translation>Schreiben Sie Jahr, Monat und Tag: &apos;2026-09-14&apos;. Ein leeres Datum ist erlaubt und bedeutet, dass kein Datum gesetzt ist.</translation>
    </message>
    <message>
        <source>Correct the wrong date; the two dates may be interchanged.</source>
        <translation>Berichtigen Sie das falsche Datum; möglicherweise sind die beiden vertauscht.</translation>
    </message>
    <message>
        <source>Correct the reported findings, then check again: at most 100,000 findings are reported for one document.</source>
        <translation>Beheben Sie die gemeldeten Befunde, und prüfen Sie dann erneut: Zu einem Dokument werden höchstens 100.000 Befunde gemeldet.</translation>
    </message>
    <message>
        <source>A configuration without a device cannot be commissioned; add the element &apos;Device&apos;.</source>
        <translation>Eine Konfiguration ohne Gerät kann nicht in Betrieb genommen werden; fügen Sie das Element &apos;Device&apos; hinzu.</translation>
    </message>
    <message>
        <source>Write &apos;kc2&apos; or &apos;kd3&apos;.</source>
        <translation>Schreiben Sie &apos;kc2&apos; oder &apos;kd3&apos;.</translation>
    </message>
    <message>
        <source>Unknown device class.</source>
        <translation>Unbekannte Geräteklasse.</translation>
    </message>
    <message>
        <source>Write &apos;kc2&apos; or &apos;kd3&apos; in lower case; anything else is read as &apos;Undefined&apos;.</source>
        <translation>Schreiben Sie &apos;kc2&apos; oder &apos;kd3&apos; in Kleinbuchstaben; alles andere wird als &apos;Undefined&apos; gelesen.</translation>
    </message>
    <message>
        <source>Give the device a name. The directory of the device in the project has the same name.</source>
        <translation>Geben Sie dem Gerät einen Namen. Das Verzeichnis des Geräts im Projekt heißt ebenso.</translation>
    </message>
    <message>
        <source>Add the element &apos;Config&apos;; without it the device has no options, files or plug-ins.</source>
        <translation>Fügen Sie das Element &apos;Config&apos; hinzu; ohne es hat das Gerät keine Optionen, Dateien und Plug-ins.</translation>
    </message>
    <message>
        <source>The name is read as &apos;STD&apos;. Add the name that is meant.</source>
        <translation>Der Name wird als &apos;STD&apos; gelesen. Ergänzen Sie den gemeinten Namen.</translation>
    </message>
    <message>
        <source>Give the configuration a name: the directories on the device are named after it.</source>
        <translation>Geben Sie der Konfiguration einen Namen: Die Verzeichnisse auf dem Gerät werden nach ihm benannt.</translation>
    </message>
    <message>
        <source>The configuration name is reserved by the device.</source>
        <translation>Der Konfigurationsname ist vom Gerät reserviert.</translation>
    </message>
    <message>
        <source>Choose a name without &apos;setup&apos;, &apos;failsafe&apos; and &apos;mount error&apos;.</source>
        <translation>Wählen Sie einen Namen ohne &apos;setup&apos;, &apos;failsafe&apos; und &apos;mount error&apos;.</translation>
    </message>
    <message>
        <source>The configuration name is not valid.</source>
        <translation>Der Konfigurationsname ist ungültig.</translation>
    </message>
    <message>
        <source>Use letters from A to Z, digits, &apos;_&apos;, &apos;-&apos; and &apos;+&apos;; a number in parentheses may follow.</source>
        <translation>Verwenden Sie Buchstaben von A bis Z, Ziffern, &apos;_&apos;, &apos;-&apos; und &apos;+&apos;; eine Zahl in Klammern darf folgen.</translation>
    </message>
    <message>
        <source>The hardware identity is not valid.</source>
        <translation>Die Hardwarekennung ist ungültig.</translation>
    </message>
    <message>
        <source>Write &apos;PREFIX:NAME:PLATFORM:VERSION:REVISION&apos;; the last three are numbers from 0 to 65535. An invalid hardware identity is read as empty.</source>
        <translation>Schreiben Sie &apos;PREFIX:NAME:PLATFORM:VERSION:REVISION&apos;; die letzten drei sind Zahlen von 0 bis 65535. Eine ungültige Hardwarekennung wird als leer gelesen.</translation>
    </message>
    <message>
        <source>The hardware identity of the drive does not match that of the device.</source>
        <translation>Die Hardwarekennung des Antriebs passt nicht zu der des Geräts.</translation>
    </message>
    <message>
        <source>A drive must have the prefix, name and platform of its device; version and revision may differ. Check whether the drive was copied from another device.</source>
        <translation>Ein Antrieb muss Präfix, Name und Plattform seines Geräts haben; Version und Revision dürfen abweichen. Prüfen Sie, ob der Antrieb von einem anderen Gerät kopiert wurde.</translation>
    </message>
    <message>
        <source>The start option is not valid, or not separated by a space.</source>
        <translation>Die Startoption ist ungültig oder nicht durch ein Leerzeichen getrennt.</translation>
    </message>
    <message>
        <source>An option begins with a hyphen; the words after it are its argument. Separate options by spaces, not by line breaks.</source>
        <translation>Eine Option beginnt mit einem Bindestrich; die Wörter danach sind ihr Argument. Trennen Sie Optionen durch Leerzeichen, nicht durch Zeilenumbrüche.</translation>
    </message>
    <message>
        <source>The start option occurs more than once.</source>
        <translation>Die Startoption kommt mehrmals vor.</translation>
    </message>
    <message>
        <source>Remove all but one. The same option with different arguments is not reported.</source>
        <translation>Entfernen Sie alle bis auf eine. Dieselbe Option mit verschiedenen Argumenten wird nicht gemeldet.</translation>
    </message>
    <message>
        <source>The flag of the OPC UA server is neither &apos;true&apos; nor &apos;false&apos;.</source>
        <translation>Der Schalter des OPC-UA-Servers ist weder &apos;true&apos; noch &apos;false&apos;.</translation>
    </message>
    <message>
        <source>Write &apos;true&apos; or &apos;false&apos; in lower case; anything else is read as &apos;false&apos;.</source>
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
        <source>Specify the type with the attribute &apos;type&apos;; it determines the directory of the file.</source>
        <translation>Geben Sie den Typ mit dem Attribut &apos;type&apos; an; er bestimmt das Verzeichnis der Datei.</translation>
    </message>
    <message>
        <source>Specify the type; it determines the directory of the file.</source>
        <translation>Geben Sie den Typ an; er bestimmt das Verzeichnis der Datei.</translation>
    </message>
    <message>
        <source>Unknown parameter file type.</source>
        <translation>Unbekannter Typ einer Parameterdatei.</translation>
    </message>
    <message>
        <source>Correct the type; it is read as &apos;Undefined&apos;. Types are case-sensitive.</source>
        <translation>Berichtigen Sie den Typ; er wird als &apos;Undefined&apos; gelesen. Bei Typen wird zwischen Groß- und Kleinschreibung unterschieden.</translation>
    </message>
    <message>
        <source>The parameter file is listed more than once.</source>
        <translation>Die Parameterdatei ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>Remove all but one. Files of the same name but of different types are allowed.</source>
        <translation>Entfernen Sie alle bis auf eine. Dateien gleichen Namens, aber verschiedenen Typs sind erlaubt.</translation>
    </message>
    <message>
        <source>The FPGA image is listed more than once.</source>
        <translation>Das FPGA-Abbild ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>Name the plug-in, or remove the entry.</source>
        <translation>Benennen Sie das Plug-in, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>The plug-in has no version.</source>
        <translation>Das Plug-in hat keine Version.</translation>
    </message>
    <message>
        <source>Specify the version; the file name ends with it.</source>
        <translation>Geben Sie die Version an; der Dateiname endet mit ihr.</translation>
    </message>
    <message>
        <source>The version of the plug-in does not consist of numbers and dots.</source>
        <translation>Die Version des Plug-ins besteht nicht aus Zahlen und Punkten.</translation>
    </message>
    <message>
        <source>Write numbers separated by dots, such as &apos;1.3&apos;; the file name ends with the version.</source>
        <translation>Schreiben Sie Zahlen, durch Punkte getrennt, wie &apos;1.3&apos;; der Dateiname endet mit der Version.</translation>
    </message>
    <message>
        <source>The plug-in is listed more than once.</source>
        <translation>Das Plug-in ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>The priority of the plug-in is not a number, or is out of range.</source>
        <translation>Die Priorität des Plug-ins ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from -2147483648 to 2147483647; otherwise the plug-in is read without a priority.</source>
        <translation>Schreiben Sie eine Zahl von -2147483648 bis 2147483647; sonst wird das Plug-in ohne Priorität gelesen.</translation>
    </message>
    <message>
        <source>The execution plug-in is not in the list of plug-ins.</source>
        <translation>Das Plug-in der Anwendung ist nicht in der Liste der Plug-ins.</translation>
    </message>
    <message>
        <source>Add the plug-in, or choose one from the list.</source>
        <translation>Fügen Sie das Plug-in hinzu, oder wählen Sie eines aus der Liste.</translation>
    </message>
    <message>
        <source>The EtherCAT master plug-in has no bus configuration file.</source>
        <translation>Das Plug-in des EtherCAT-Masters hat keine Datei mit der Buskonfiguration.</translation>
    </message>
    <message>
        <source>Add the bus configuration, or remove the plug-in.</source>
        <translation>Fügen Sie die Buskonfiguration hinzu, oder entfernen Sie das Plug-in.</translation>
    </message>
    <message>
        <source>The bus configuration file has no EtherCAT master plug-in.</source>
        <translation>Zur Datei mit der Buskonfiguration fehlt das Plug-in des EtherCAT-Masters.</translation>
    </message>
    <message>
        <source>Add the plug-in &apos;CECatMaster&apos;, or remove the file.</source>
        <translation>Fügen Sie das Plug-in &apos;CECatMaster&apos; hinzu, oder entfernen Sie die Datei.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; without a type the drive is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; ohne Typ wird der Antrieb als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>The type of the drive is &apos;Undefined&apos;.</source>
        <translation>Der Typ des Antriebs ist &apos;Undefined&apos;.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; the drive is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; der Antrieb wird als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>Unknown drive type.</source>
        <translation>Unbekannter Antriebstyp.</translation>
    </message>
    <message>
        <source>Write &apos;KD2_drive&apos; or &apos;KD3_drive&apos;; anything else, also in lower case, is read as &apos;KD3_drive&apos;.</source>
        <translation>Schreiben Sie &apos;KD2_drive&apos; oder &apos;KD3_drive&apos;; alles andere, auch in Kleinbuchstaben, wird als &apos;KD3_drive&apos; gelesen.</translation>
    </message>
    <message>
        <source>A file for KD2 drives belongs to a drive of another type.</source>
        <translation>Eine Datei für KD2-Antriebe gehört zu einem Antrieb anderen Typs.</translation>
    </message>
    <message>
        <source>Remove the file, or change the type of the drive to &apos;KD2_drive&apos;.</source>
        <translation>Entfernen Sie die Datei, oder ändern Sie den Typ des Antriebs in &apos;KD2_drive&apos;.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 254; otherwise the drive gets the next free number.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 254; sonst bekommt der Antrieb die nächste freie Nummer.</translation>
    </message>
    <message>
        <source>The drive number is not a number, or is out of range.</source>
        <translation>Die Antriebsnummer ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 254; otherwise the drive gets the next free number. 255 means that no number is assigned.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 254; sonst bekommt der Antrieb die nächste freie Nummer. 255 bedeutet, dass keine Nummer vergeben ist.</translation>
    </message>
    <message>
        <source>Two drives have the same drive number.</source>
        <translation>Zwei Antriebe haben dieselbe Antriebsnummer.</translation>
    </message>
    <message>
        <source>Give each drive a unique number; otherwise all drives but the first get the next free numbers.</source>
        <translation>Geben Sie jedem Antrieb eine eindeutige Nummer; sonst bekommen alle Antriebe bis auf den ersten die nächsten freien Nummern.</translation>
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
        <source>Give each drive a unique name.</source>
        <translation>Geben Sie jedem Antrieb einen eindeutigen Namen.</translation>
    </message>
    <message>
        <source>The bus identifier of the drive is not a number, or is out of range.</source>
        <translation>Die Buskennung des Antriebs ist keine Zahl oder außerhalb des Bereichs.</translation>
    </message>
    <message>
        <source>Write a number from 0 to 4294967295; anything else is read as 0, which means that no bus identifier is assigned.</source>
        <translation>Schreiben Sie eine Zahl von 0 bis 4294967295; alles andere wird als 0 gelesen, was bedeutet, dass keine Buskennung vergeben ist.</translation>
    </message>
    <message>
        <source>Two drives have the same bus identifier.</source>
        <translation>Zwei Antriebe haben dieselbe Buskennung.</translation>
    </message>
    <message>
        <source>Check whether both drives are on the same fieldbus; drives on one fieldbus need different bus identifiers.</source>
        <translation>Prüfen Sie, ob beide Antriebe am selben Feldbus sind; Antriebe an einem Feldbus brauchen verschiedene Buskennungen.</translation>
    </message>
    <message>
        <source>The file has no name.</source>
        <translation>Die Datei hat keinen Namen.</translation>
    </message>
    <message>
        <source>Name the file, or remove the entry.</source>
        <translation>Benennen Sie die Datei, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>The file name is a path, or contains invalid characters.</source>
        <translation>Der Dateiname ist ein Pfad oder enthält ungültige Zeichen.</translation>
    </message>
    <message>
        <source>Write the name without a directory; directories have elements of their own. A line break in the element is part of the name.</source>
        <translation>Schreiben Sie den Namen ohne Verzeichnis; Verzeichnisse haben eigene Elemente. Ein Zeilenumbruch im Element ist Teil des Namens.</translation>
    </message>
    <message>
        <source>The file is listed more than once.</source>
        <translation>Die Datei ist mehrmals aufgeführt.</translation>
    </message>
    <message>
        <source>Two files would overwrite each other on the device.</source>
        <translation>Zwei Dateien würden sich auf dem Gerät gegenseitig überschreiben.</translation>
    </message>
    <message>
        <source>Give one of the files another name or another directory on the device. Parameter files, FPGA images, plug-ins and the configuration itself also have places on the device.</source>
        <translation>Geben Sie einer der Dateien einen anderen Namen oder ein anderes Verzeichnis auf dem Gerät. Auch Parameterdateien, FPGA-Abbilder, Plug-ins und die Konfiguration selbst haben Plätze auf dem Gerät.</translation>
    </message>
    <message>
        <source>The file has no directory on the device.</source>
        <translation>Die Datei hat kein Verzeichnis auf dem Gerät.</translation>
    </message>
    <message>
        <source>Specify the directory of the file on the device.</source>
        <translation>Geben Sie das Verzeichnis der Datei auf dem Gerät an.</translation>
    </message>
    <message>
        <source>The directory on the device does not begin with a slash.</source>
        <translation>Das Verzeichnis auf dem Gerät beginnt nicht mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>Begin the directory with a slash; it is read as if it began with one.</source>
        <translation>Beginnen Sie das Verzeichnis mit einem Schrägstrich; es wird gelesen, als begänne es mit einem.</translation>
    </message>
    <message>
        <source>The directory on the device contains &apos;..&apos;.</source>
        <translation>Das Verzeichnis auf dem Gerät enthält &apos;..&apos;.</translation>
    </message>
    <message>
        <source>Write the directory that is meant without &apos;..&apos;.</source>
        <translation>Schreiben Sie das gemeinte Verzeichnis ohne &apos;..&apos;.</translation>
    </message>
    <message>
        <source>The directory on the device is outside the directory trees of the device.</source>
        <translation>Das Verzeichnis auf dem Gerät liegt außerhalb der Verzeichnisbäume des Geräts.</translation>
    </message>
    <message>
        <source>Choose a directory below &apos;/velkor/&apos; or &apos;/opt/velkor/&apos;.</source>
        <translation>Wählen Sie ein Verzeichnis unter &apos;/velkor/&apos; oder &apos;/opt/velkor/&apos;.</translation>
    </message>
    <message>
        <source>The directory on the device belongs to another configuration.</source>
        <translation>Das Verzeichnis auf dem Gerät gehört zu einer anderen Konfiguration.</translation>
    </message>
    <message>
        <source>If the configuration was renamed, change the directory accordingly.</source>
        <translation>Wenn die Konfiguration umbenannt wurde, passen Sie das Verzeichnis an.</translation>
    </message>
    <message>
        <source>The directory in the project is an absolute path, which is valid on one computer only.</source>
        <translation>Das Verzeichnis im Projekt ist ein absoluter Pfad, der nur auf einem Rechner gilt.</translation>
    </message>
    <message>
        <source>Write the directory relative to the project.</source>
        <translation>Schreiben Sie das Verzeichnis relativ zum Projekt.</translation>
    </message>
    <message>
        <source>The directory in the project is outside the project.</source>
        <translation>Das Verzeichnis im Projekt liegt außerhalb des Projekts.</translation>
    </message>
    <message>
        <source>Move the file into the project.</source>
        <translation>Verschieben Sie die Datei in das Projekt.</translation>
    </message>
    <message>
        <source>The directory in the project is not below the directory of the device; it is removed when the device is read.</source>
        <translation>Das Verzeichnis im Projekt liegt nicht unter dem Verzeichnis des Geräts; es wird beim Lesen des Geräts entfernt.</translation>
    </message>
    <message>
        <source>Move the object dictionary or the fault texts below the directory that has the name of the device.</source>
        <translation>Verschieben Sie das Objektverzeichnis oder die Fehlertexte unter das Verzeichnis, das den Namen des Geräts hat.</translation>
    </message>
    <message>
        <source>The file is not in the project.</source>
        <translation>Die Datei ist nicht im Projekt.</translation>
    </message>
    <message>
        <source>Put the file into the project, or correct its name or directory. The directory of a parameter file, an FPGA image or a plug-in follows from its kind; &apos;vrndevice place&apos; shows it.</source>
        <translation>Legen Sie die Datei in das Projekt, oder berichtigen Sie ihren Namen oder ihr Verzeichnis. Das Verzeichnis einer Parameterdatei, eines FPGA-Abbilds oder eines Plug-ins folgt aus der Art; &apos;vrndevice place&apos; zeigt es.</translation>
    </message>
    <message>
        <source>The file name in the project differs in upper and lower case.</source>
        <translation>Der Dateiname im Projekt weicht in der Groß- und Kleinschreibung ab.</translation>
    </message>
    <message>
        <source>Use the same file name in the project and in the configuration; file names on the device are case-sensitive.</source>
        <translation>Verwenden Sie im Projekt und in der Konfiguration denselben Dateinamen; auf dem Gerät wird zwischen Groß- und Kleinschreibung unterschieden.</translation>
    </message>
    <message>
        <source>A symbolic link leads out of the project.</source>
        <translation>Eine symbolische Verknüpfung führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>Replace the symbolic link with the file; a copy of the project does not contain what is outside.</source>
        <translation>Ersetzen Sie die symbolische Verknüpfung durch die Datei; eine Kopie des Projekts enthält nicht, was außerhalb liegt.</translation>
    </message>
    <message>
        <source>The file in the project is not a regular file.</source>
        <translation>Die Datei im Projekt ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Replace the directory, pipe or device of that name with a regular file.</source>
        <translation>Ersetzen Sie das Verzeichnis, die Pipe oder die Gerätedatei dieses Namens durch eine reguläre Datei.</translation>
    </message>
    <message>
        <source>The file in the project cannot be read.</source>
        <translation>Die Datei im Projekt ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Check the permissions of the file.</source>
        <translation>Prüfen Sie die Zugriffsrechte der Datei.</translation>
    </message>
    <message>
        <source>The file in the project is empty.</source>
        <translation>Die Datei im Projekt ist leer.</translation>
    </message>
    <message>
        <source>Add the content of the file, or remove the entry.</source>
        <translation>Ergänzen Sie den Inhalt der Datei, oder entfernen Sie den Eintrag.</translation>
    </message>
    <message>
        <source>The file in the project differs from the manifest.</source>
        <translation>Die Datei im Projekt weicht vom Manifest ab.</translation>
    </message>
    <message>
        <source>Restore the file with the size and the SHA-256 checksum in &apos;manifest.json&apos;, or create the manifest again.</source>
        <translation>Stellen Sie die Datei mit der Größe und der SHA-256-Prüfsumme in &apos;manifest.json&apos; wieder her, oder erzeugen Sie das Manifest neu.</translation>
    </message>
    <message>
        <source>The manifest of the project cannot be read.</source>
        <translation>Das Manifest des Projekts ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Create the manifest again. Until then the files are not compared with it.</source>
        <translation>Erzeugen Sie das Manifest neu. Bis dahin werden die Dateien nicht mit ihm verglichen.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;; upper and lower case are distinguished.</source>
        <translation>Schreiben Sie &apos;%1&apos;; zwischen Groß- und Kleinschreibung wird unterschieden.</translation>
    </message>
    <message>
        <source>names of at most %1 bytes</source>
        <translation>Namen von höchstens %1 Bytes</translation>
    </message>
    <message>
        <source>a directory below %1 or %2</source>
        <translation>ein Verzeichnis unter %1 oder %2</translation>
    </message>
    <message>
        <source>Remove the entry if no file is meant.</source>
        <translation>Entfernen Sie den Eintrag, wenn keine Datei gemeint ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid file name.</source>
        <translation>&apos;%1&apos; ist kein gültiger Dateiname.</translation>
    </message>
    <message>
        <source>a name without directories, slashes and line breaks</source>
        <translation>ein Name ohne Verzeichnisse, Schrägstriche und Zeilenumbrüche</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has no directory on the device.</source>
        <translation>Die Datei &apos;%1&apos; hat kein Verzeichnis auf dem Gerät.</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; contains &apos;..&apos;.</source>
        <translation>Das Verzeichnis &apos;%1&apos; enthält &apos;..&apos;.</translation>
    </message>
    <message>
        <source>a directory without &apos;..&apos;</source>
        <translation>ein Verzeichnis ohne &apos;..&apos;</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; is outside the directory trees of the device.</source>
        <translation>Das Verzeichnis &apos;%1&apos; liegt außerhalb der Verzeichnisbäume des Geräts.</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; cannot be stored on the device.</source>
        <translation>Das Verzeichnis &apos;%1&apos; kann auf dem Gerät nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Choose shorter names.</source>
        <translation>Wählen Sie kürzere Namen.</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; is an absolute path.</source>
        <translation>Das Verzeichnis &apos;%1&apos; ist ein absoluter Pfad.</translation>
    </message>
    <message>
        <source>a directory relative to the project</source>
        <translation>ein Verzeichnis relativ zum Projekt</translation>
    </message>
    <message>
        <source>The directory &apos;%1&apos; is outside the project.</source>
        <translation>Das Verzeichnis &apos;%1&apos; liegt außerhalb des Projekts.</translation>
    </message>
    <message>
        <source>a directory in the project</source>
        <translation>ein Verzeichnis im Projekt</translation>
    </message>
    <message>
        <source>After a symbolic link, &apos;..&apos; leads to another directory.</source>
        <translation>Nach einer symbolischen Verknüpfung führt &apos;..&apos; in ein anderes Verzeichnis.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not in the project.</source>
        <translation>Die Datei &apos;%1&apos; ist nicht im Projekt.</translation>
    </message>
    <message>
        <source>The symbolic link of that name points to a missing file.</source>
        <translation>Die symbolische Verknüpfung dieses Namens zeigt auf eine fehlende Datei.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is named &apos;%2&apos; in the project.</source>
        <translation>Die Datei &apos;%1&apos; heißt im Projekt &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>File names on the device are case-sensitive.</source>
        <translation>Auf dem Gerät wird bei Dateinamen zwischen Groß- und Kleinschreibung unterschieden.</translation>
    </message>
    <message>
        <source>A symbolic link on the path &apos;%1&apos; leads out of the project.</source>
        <translation>Eine symbolische Verknüpfung auf dem Pfad &apos;%1&apos; führt aus dem Projekt hinaus.</translation>
    </message>
    <message>
        <source>a file in the project</source>
        <translation>eine Datei im Projekt</translation>
    </message>
    <message>
        <source>A copy of the project does not contain the file.</source>
        <translation>Eine Kopie des Projekts enthält die Datei nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a regular file.</source>
        <translation>&apos;%1&apos; ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>a regular file</source>
        <translation>eine reguläre Datei</translation>
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
        <source>The file &apos;%1&apos; cannot be read: %2</source>
        <translation>Die Datei &apos;%1&apos; kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>a readable file</source>
        <translation>eine lesbare Datei</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has the same place on the device as %2.</source>
        <translation>Die Datei &apos;%1&apos; hat denselben Platz auf dem Gerät wie %2.</translation>
    </message>
    <message>
        <source>a unique place</source>
        <translation>ein eindeutiger Platz</translation>
    </message>
    <message>
        <source>The file that is transferred last overwrites the other one.</source>
        <translation>Die zuletzt übertragene überschreibt die andere.</translation>
    </message>
</context>
<context>
    <name>CConfigurationItems</name>
    <message>
        <source>%1: the drive does not exist</source>
        <translation>%1: der Antrieb existiert nicht</translation>
    </message>
    <message>
        <source>%1: the parameter file does not exist</source>
        <translation>%1: die Parameterdatei existiert nicht</translation>
    </message>
    <message>
        <source>%1: the FPGA image does not exist</source>
        <translation>%1: das FPGA-Abbild existiert nicht</translation>
    </message>
    <message>
        <source>%1: the OPC UA file does not exist</source>
        <translation>%1: die OPC-UA-Datei existiert nicht</translation>
    </message>
    <message>
        <source>%1: the plug-in does not exist</source>
        <translation>%1: das Plug-in existiert nicht</translation>
    </message>
    <message>
        <source>%1: the option does not exist</source>
        <translation>%1: die Option existiert nicht</translation>
    </message>
    <message>
        <source>%1: the file does not exist</source>
        <translation>%1: die Datei existiert nicht</translation>
    </message>
    <message>
        <source>%1: the drive already exists</source>
        <translation>%1: der Antrieb existiert schon</translation>
    </message>
    <message>
        <source>%1: the parameter file already exists</source>
        <translation>%1: die Parameterdatei existiert schon</translation>
    </message>
    <message>
        <source>%1: the FPGA image already exists</source>
        <translation>%1: das FPGA-Abbild existiert schon</translation>
    </message>
    <message>
        <source>%1: the OPC UA file already exists</source>
        <translation>%1: die OPC-UA-Datei existiert schon</translation>
    </message>
    <message>
        <source>%1: the plug-in already exists</source>
        <translation>%1: das Plug-in existiert schon</translation>
    </message>
    <message>
        <source>%1: the option already exists</source>
        <translation>%1: die Option existiert schon</translation>
    </message>
    <message>
        <source>%1: the file already exists</source>
        <translation>%1: die Datei existiert schon</translation>
    </message>
    <message>
        <source>%1: %2 Expected: %3.</source>
        <translation>%1: %2 Erwartet: %3.</translation>
    </message>
    <message>
        <source>%1: only list entries can be added</source>
        <translation>%1: nur Listenelemente können hinzugefügt werden</translation>
    </message>
    <message>
        <source>%1: a second entry with the same key cannot be added</source>
        <translation>%1: ein zweites Listenelement mit demselben Schlüssel kann nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>%1: only single items, list entries and files can be removed</source>
        <translation>%1: nur einzelne Einträge, Listenelemente und Dateien können entfernt werden</translation>
    </message>
    <message>
        <source>%1: the entry cannot exist without this item</source>
        <translation>%1: das Listenelement kann nicht ohne diesen Eintrag bestehen</translation>
    </message>
    <message>
        <source>The document contains no configuration.</source>
        <translation>Das Dokument enthält keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1: name an entry of the list, as in %2</source>
        <translation>%1: nennen Sie ein Element der Liste, wie in %2</translation>
    </message>
    <message>
        <source>%1: only a drive of the type KD2_drive has this file</source>
        <translation>%1: nur ein Antrieb vom Typ KD2_drive hat diese Datei</translation>
    </message>
    <message>
        <source>%1: %2 is not a list and takes no brackets</source>
        <translation>%1: %2 ist keine Liste und hat keine Klammern</translation>
    </message>
    <message>
        <source>%1: unknown item</source>
        <translation>%1: unbekannter Eintrag</translation>
    </message>
    <message>
        <source>%1: unknown item; did you mean %2?</source>
        <translation>%1: unbekannter Eintrag; meinten Sie %2?</translation>
    </message>
    <message>
        <source>%1: unknown item; expected is one of %2</source>
        <translation>%1: unbekannter Eintrag; erwartet wird einer von %2</translation>
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
        <source>only &apos;]&apos; and &apos;\&apos; can follow a &apos;\&apos;</source>
        <translation>nur &apos;]&apos; und &apos;\&apos; können auf ein &apos;\&apos; folgen</translation>
    </message>
    <message>
        <source>after a key, brackets can only contain a number from 2 on</source>
        <translation>nach einem Schlüssel können Klammern nur eine Zahl ab 2 enthalten</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid path: %2 at character %3</source>
        <translation>&apos;%1&apos; ist kein gültiger Pfad: %2 bei Zeichen %3</translation>
    </message>
    <message>
        <source>%1: this path does not lead to a single value</source>
        <translation>%1: dieser Pfad führt nicht zu einem einzelnen Wert</translation>
    </message>
    <message>
        <source>%1: the configuration does not contain this item</source>
        <translation>%1: die Konfiguration enthält diesen Eintrag nicht</translation>
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
        <source>%1: the change of theirs cannot be stored</source>
        <translation>%1: die Änderung der anderen Seite kann nicht gespeichert werden</translation>
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
        <source>The version of the patch is not supported; version %1 is required.</source>
        <translation>Die Version der Änderungsdatei wird nicht unterstützt; verlangt ist Version %1.</translation>
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
        <source>&quot;%1&quot; is changed more than once.</source>
        <translation>&quot;%1&quot; wird mehrmals geändert.</translation>
    </message>
    <message>
        <source>This is not an object.</source>
        <translation>Dies ist kein Objekt.</translation>
    </message>
    <message>
        <source>The value of &quot;%1&quot; is not a known kind of change.</source>
        <translation>Der Wert von &quot;%1&quot; ist keine bekannte Art von Änderung.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid path.</source>
        <translation>&quot;%1&quot; ist kein gültiger Pfad.</translation>
    </message>
    <message>
        <source>The item &quot;%1&quot; occurs more than once.</source>
        <translation>Der Eintrag &quot;%1&quot; kommt mehrmals vor.</translation>
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
        <source>The document contains no configuration.</source>
        <translation>Das Dokument enthält keine Konfiguration.</translation>
    </message>
    <message>
        <source>%1: %2 is %3, but %4 is expected.</source>
        <translation>%1: %2 ist %3, erwartet wird aber %4.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 existiert nicht.</translation>
    </message>
    <message>
        <source>%1 already exists.</source>
        <translation>%1 existiert schon.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid path.</source>
        <translation>&apos;%1&apos; ist kein gültiger Pfad.</translation>
    </message>
    <message>
        <source>argument</source>
        <translation>Argument</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>CConfigurationReport</name>
    <message>
        <source>No bus ID</source>
        <translation>Keine Bus-ID</translation>
    </message>
    <message>
        <source>Bus ID %1</source>
        <translation>Bus-ID %1</translation>
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
        <source>Device %1. Drives on its fieldbus: %2.</source>
        <translation>Gerät %1. Antriebe an seinem Feldbus: %2.</translation>
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
        <source>Device</source>
        <translation>Gerät</translation>
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
        <source>Written by</source>
        <translation>Geschrieben von</translation>
    </message>
    <message>
        <source>Written on</source>
        <translation>Geschrieben am</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>The device has no drives.</source>
        <translation>Das Gerät hat keine Antriebe.</translation>
    </message>
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
        <source>Files of the device</source>
        <translation>Dateien des Geräts</translation>
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
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>The check found no errors and no warnings.</source>
        <translation>Die Prüfung ergab weder Fehler noch Warnungen.</translation>
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
        <source>en</source>
        <extracomment>The code of the language that these texts are translated into, as &quot;de&quot; or &quot;pt-BR&quot;.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Created from the configuration; the page loads nothing else when it is opened.</source>
        <translation>Aus der Konfiguration erzeugt; die Seite lädt beim Öffnen nichts nach.</translation>
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
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
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
        <source>The device has no plug-ins.</source>
        <translation>Das Gerät hat keine Plug-ins.</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
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
        <source>The hardware identity &apos;%1&apos; of &apos;%2&apos; is not valid.</source>
        <translation>Die Hardwarekennung &apos;%1&apos; von &apos;%2&apos; ist ungültig.</translation>
    </message>
    <message>
        <source>The device configuration file was created with a previous version</source>
        <translation>Die Gerätekonfigurationsdatei wurde mit einer früheren Version erstellt</translation>
    </message>
    <message>
        <source>The device configuration file was created with a later version</source>
        <translation>Die Gerätekonfigurationsdatei wurde mit einer späteren Version erstellt</translation>
    </message>
    <message>
        <source>The drive &apos;%1&apos; is left out: all drive numbers are in use.</source>
        <translation>Der Antrieb &apos;%1&apos; wird ausgelassen: Alle Antriebsnummern sind belegt.</translation>
    </message>
    <message>
        <source>The drive &apos;%1&apos; has no unique drive number and gets %2.</source>
        <translation>Der Antrieb &apos;%1&apos; hat keine eindeutige Antriebsnummer und bekommt %2.</translation>
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
        <source>&quot;%1&quot; is not a valid path on a device.</source>
        <translation>&quot;%1&quot; ist kein gültiger Pfad auf einem Gerät.</translation>
    </message>
    <message>
        <source>The project path &quot;%2&quot; of &quot;%1&quot; is not valid.</source>
        <translation>Der Projektpfad &quot;%2&quot; von &quot;%1&quot; ist ungültig.</translation>
    </message>
    <message>
        <source>The size of &quot;%1&quot; is not valid.</source>
        <translation>Die Größe von &quot;%1&quot; ist ungültig.</translation>
    </message>
    <message>
        <source>The checksum of &quot;%1&quot; is not valid.</source>
        <translation>Die Prüfsumme von &quot;%1&quot; ist ungültig.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; occurs more than once.</source>
        <translation>&quot;%1&quot; kommt mehrmals vor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is both a file and a directory.</source>
        <translation>&quot;%1&quot; ist sowohl eine Datei als auch ein Verzeichnis.</translation>
    </message>
    <message>
        <source>This is not a manifest of a device tree.</source>
        <translation>Dies ist kein Manifest eines Gerätebaums.</translation>
    </message>
    <message>
        <source>The version of the manifest is not supported; version %1 is required.</source>
        <translation>Die Version des Manifests wird nicht unterstützt; verlangt ist Version %1.</translation>
    </message>
    <message>
        <source>The directories and the files must be lists.</source>
        <translation>Die Verzeichnisse und die Dateien müssen Listen sein.</translation>
    </message>
    <message>
        <source>This is not JSON: %1.</source>
        <translation>Dies ist kein JSON: %1.</translation>
    </message>
    <message>
        <source>The manifest was changed: it does not have the form in which manifests are written.</source>
        <translation>Das Manifest wurde verändert: Es hat nicht die Form, in der Manifeste geschrieben werden.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
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
        <source>&apos;%1&apos; is not one of %2.</source>
        <translation>&apos;%1&apos; ist keiner der Werte %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid IPv4 address; write one such as 192.168.1.10.</source>
        <translation>&apos;%1&apos; ist keine gültige IPv4-Adresse; schreiben Sie eine wie 192.168.1.10.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid subnet mask; write one such as 255.255.255.0.</source>
        <translation>&apos;%1&apos; ist keine gültige Subnetzmaske; schreiben Sie eine wie 255.255.255.0.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid port number; write a number from 1 to 65535.</source>
        <translation>&apos;%1&apos; ist keine gültige Portnummer; schreiben Sie eine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid kernel log level; write a number from 0 to 7.</source>
        <translation>&apos;%1&apos; ist keine gültige Protokollstufe des Kernels; schreiben Sie eine Zahl von 0 bis 7.</translation>
    </message>
    <message>
        <source>A section begins here; its keys are ignored.</source>
        <translation>Hier beginnt ein Abschnitt; seine Schlüssel werden ignoriert.</translation>
    </message>
    <message>
        <source>This is neither KEY=value nor a comment.</source>
        <translation>Dies ist weder KEY=Wert noch ein Kommentar.</translation>
    </message>
    <message>
        <source>Unknown key.</source>
        <translation>Unbekannter Schlüssel.</translation>
    </message>
    <message>
        <source>This line is ignored: it belongs to a quotation mark or backslash before it.</source>
        <translation>Diese Zeile wird ignoriert: Sie gehört zu einem Anführungszeichen oder Backslash davor.</translation>
    </message>
    <message>
        <source>This overrides the value in line %1.</source>
        <translation>Dies überschreibt den Wert in Zeile %1.</translation>
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
        <source>The plan contains no files.</source>
        <translation>Der Plan enthält keine Dateien.</translation>
    </message>
    <message>
        <source>Neither a directory nor an archive is given.</source>
        <translation>Weder ein Verzeichnis noch ein Archiv ist angegeben.</translation>
    </message>
    <message>
        <source>This is neither a directory nor a regular file.</source>
        <translation>Dies ist weder ein Verzeichnis noch eine reguläre Datei.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The archive is truncated.</source>
        <translation>Das Archiv ist unvollständig.</translation>
    </message>
    <message>
        <source>This is not a tar archive compressed with gzip.</source>
        <translation>Dies ist kein mit gzip komprimiertes tar-Archiv.</translation>
    </message>
    <message>
        <source>%1 is a sparse file or is truncated.</source>
        <translation>%1 hat Lücken oder ist unvollständig.</translation>
    </message>
    <message>
        <source>The checksum of the archive is wrong.</source>
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
        <source>The archive is damaged: %1</source>
        <translation>Das Archiv ist beschädigt: %1</translation>
    </message>
    <message>
        <source>%1 occurs more than once in the archive.</source>
        <translation>%1 kommt mehrmals im Archiv vor.</translation>
    </message>
    <message>
        <source>%1 is not in the manifest.</source>
        <translation>%1 steht nicht im Manifest.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid path on a device.</source>
        <translation>&quot;%1&quot; ist kein gültiger Pfad auf einem Gerät.</translation>
    </message>
    <message>
        <source>%1 is not a directory.</source>
        <translation>%1 ist kein Verzeichnis.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
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
        <source>This is not a regular file.</source>
        <translation>Dies ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>%1 is missing in the archive.</source>
        <translation>%1 fehlt im Archiv.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 is not a device tree that can be replaced: %2</source>
        <translation>%1 ist kein Gerätebaum, der ersetzt werden kann: %2</translation>
    </message>
    <message>
        <source>%1 contains more than a device tree and cannot be replaced: %2</source>
        <translation>%1 enthält mehr als einen Gerätebaum und kann nicht ersetzt werden: %2</translation>
    </message>
    <message>
        <source>The archive would be inside the tree.</source>
        <translation>Das Archiv läge innerhalb des Baums.</translation>
    </message>
    <message>
        <source>The file belongs to the project.</source>
        <translation>Die Datei gehört zum Projekt.</translation>
    </message>
    <message>
        <source>%1 changed while it was copied.</source>
        <translation>%1 hat sich während des Kopierens geändert.</translation>
    </message>
    <message>
        <source>%1; all files are in place, but a power failure may undo this</source>
        <translation>%1; alle Dateien sind an ihrem Platz, aber ein Stromausfall kann dies rückgängig machen</translation>
    </message>
    <message>
        <source>%1 already exists and is not empty.</source>
        <translation>%1 existiert schon und ist nicht leer.</translation>
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
        <source>The device has no configuration name; the directories on the device are named after it.</source>
        <translation>Das Gerät hat keinen Konfigurationsnamen; die Verzeichnisse auf dem Gerät werden nach ihm benannt.</translation>
    </message>
    <message>
        <source>The configuration name &quot;%1&quot; cannot be used as the name of a directory.</source>
        <translation>Der Konfigurationsname &quot;%1&quot; kann nicht als Name eines Verzeichnisses dienen.</translation>
    </message>
</context>
<context>
    <name>CXmlAbstractVornFile</name>
    <message>
        <source>This is not valid UTF-16 text.</source>
        <translation>Dies ist kein gültiger UTF-16-Text.</translation>
    </message>
    <message>
        <source>The document contains no element.</source>
        <translation>Das Dokument enthält kein Element.</translation>
    </message>
    <message>
        <source>The document ends before the element &apos;%1&apos; is closed.</source>
        <translation>Das Dokument endet, bevor das Element &apos;%1&apos; geschlossen ist.</translation>
    </message>
    <message>
        <source>This character is not allowed here.</source>
        <translation>Dieses Zeichen ist hier nicht erlaubt.</translation>
    </message>
    <message>
        <source>The markup that begins here is not closed before the document ends.</source>
        <translation>Das Markup, das hier beginnt, ist bis zum Ende des Dokuments nicht geschlossen.</translation>
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
        <source>The root element is followed by further content.</source>
        <translation>Auf das Wurzelelement folgt weiterer Inhalt.</translation>
    </message>
    <message>
        <source>The entity is not declared.</source>
        <translation>Die Entität ist nicht deklariert.</translation>
    </message>
    <message>
        <source>The reference is to a character that XML does not allow.</source>
        <translation>Die Referenz bezeichnet ein Zeichen, das in XML nicht erlaubt ist.</translation>
    </message>
    <message>
        <source>The XML declaration must be at the very beginning.</source>
        <translation>Die XML-Deklaration muss ganz am Anfang stehen.</translation>
    </message>
    <message>
        <source>The encoding is unknown.</source>
        <translation>Die Zeichenkodierung ist unbekannt.</translation>
    </message>
    <message>
        <source>The XML declaration is malformed.</source>
        <translation>Die XML-Deklaration ist fehlerhaft.</translation>
    </message>
    <message>
        <source>The XML version &apos;%1&apos; is unknown.</source>
        <translation>Die XML-Version &apos;%1&apos; ist unbekannt.</translation>
    </message>
    <message>
        <source>The document is not in the encoding that it declares.</source>
        <translation>Das Dokument hat nicht die Zeichenkodierung, die es angibt.</translation>
    </message>
    <message>
        <source>This is not valid UTF-8 text, and the document declares no other encoding.</source>
        <translation>Dies ist kein gültiger UTF-8-Text, und das Dokument gibt keine andere Zeichenkodierung an.</translation>
    </message>
    <message>
        <source>A document type declaration with an internal subset is not allowed.</source>
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
        <source>A comment contains &apos;--&apos; or ends with &apos;-&apos;, which XML does not allow.</source>
        <translation>Ein Kommentar enthält &apos;--&apos; oder endet mit &apos;-&apos;, was in XML nicht erlaubt ist.</translation>
    </message>
    <message>
        <source>A processing instruction contains &apos;?&gt;&apos;, which XML does not allow.</source>
        <translation>Eine Verarbeitungsanweisung enthält &apos;?&gt;&apos;, was in XML nicht erlaubt ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid name of an element or attribute.</source>
        <translation>&apos;%1&apos; ist kein gültiger Name eines Elements oder Attributs.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; contains the character U+%2, which XML does not allow.</source>
        <translation>Das Element &apos;%1&apos; enthält das Zeichen U+%2, das in XML nicht erlaubt ist.</translation>
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
        <source>The file object has no document to save.</source>
        <translation>Das Dateiobjekt hat kein Dokument, das gesichert werden könnte.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid document type.</source>
        <translation>&apos;%1&apos; ist kein gültiger Dokumenttyp.</translation>
    </message>
    <message>
        <source>There is not enough memory for the document.</source>
        <translation>Der Speicher reicht für das Dokument nicht aus.</translation>
    </message>
</context>
<context>
    <name>ConfigurationShape</name>
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
        <source>hardware identity</source>
        <translation>Hardwarekennung</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
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
        <source>configuration name</source>
        <translation>Konfigurationsname</translation>
    </message>
    <message>
        <source>class</source>
        <translation>Klasse</translation>
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
        <source>drive number</source>
        <translation>Antriebsnummer</translation>
    </message>
    <message>
        <source>bus identifier</source>
        <translation>Buskennung</translation>
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
        <source>device directory</source>
        <translation>Verzeichnis auf dem Gerät</translation>
    </message>
    <message>
        <source>project directory</source>
        <translation>Verzeichnis im Projekt</translation>
    </message>
    <message>
        <source>priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>option %1</source>
        <translation>Option %1</translation>
    </message>
    <message>
        <source>start options</source>
        <translation>Startoptionen</translation>
    </message>
    <message>
        <source>active FPGA image</source>
        <translation>aktives FPGA-Abbild</translation>
    </message>
    <message>
        <source>OPC UA file %1</source>
        <translation>OPC-UA-Datei %1</translation>
    </message>
    <message>
        <source>OPC UA files</source>
        <translation>OPC-UA-Dateien</translation>
    </message>
    <message>
        <source>parameter file %1</source>
        <translation>Parameterdatei %1</translation>
    </message>
    <message>
        <source>parameter files</source>
        <translation>Parameterdateien</translation>
    </message>
    <message>
        <source>FPGA image %1</source>
        <translation>FPGA-Abbild %1</translation>
    </message>
    <message>
        <source>FPGA images</source>
        <translation>FPGA-Abbilder</translation>
    </message>
    <message>
        <source>file %1</source>
        <translation>Datei %1</translation>
    </message>
    <message>
        <source>additional files</source>
        <translation>zusätzliche Dateien</translation>
    </message>
    <message>
        <source>plug-in %1</source>
        <translation>Plug-in %1</translation>
    </message>
    <message>
        <source>plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>Antrieb %1</translation>
    </message>
    <message>
        <source>drives</source>
        <translation>Antriebe</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>FileStorage</name>
    <message>
        <source>This is not a regular file.</source>
        <translation>Dies ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>%1; the new content is in place, but a power failure may undo this</source>
        <translation>%1; der neue Inhalt ist an seinem Platz, aber ein Stromausfall kann dies rückgängig machen</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Die Datei ist größer als %1 Bytes.</translation>
    </message>
</context>
<context>
    <name>ItemValue</name>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a date such as 2026-11-21</source>
        <translation>ein Datum wie 2026-11-21</translation>
    </message>
    <message>
        <source>a word that begins with &apos;-&apos;</source>
        <translation>ein Wort, das mit &apos;-&apos; beginnt</translation>
    </message>
    <message>
        <source>words that do not begin with &apos;-&apos;, with one space between each two</source>
        <translation>Wörter, die nicht mit &apos;-&apos; beginnen, mit je einem Leerzeichen dazwischen</translation>
    </message>
    <message>
        <source>a name</source>
        <translation>ein Name</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid date.</source>
        <translation>&apos;%1&apos; ist kein gültiges Datum.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid device class.</source>
        <translation>&apos;%1&apos; ist keine gültige Geräteklasse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid hardware identity.</source>
        <translation>&apos;%1&apos; ist keine gültige Hardwarekennung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither true nor false.</source>
        <translation>&apos;%1&apos; ist weder true noch false.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid number.</source>
        <translation>&apos;%1&apos; ist keine gültige Zahl.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid type of a parameter file.</source>
        <translation>&apos;%1&apos; ist kein gültiger Typ einer Parameterdatei.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid type of a drive.</source>
        <translation>&apos;%1&apos; ist kein gültiger Typ eines Antriebs.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid drive number.</source>
        <translation>&apos;%1&apos; ist keine gültige Antriebsnummer.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid start option.</source>
        <translation>&apos;%1&apos; ist keine gültige Startoption.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid argument of a start option.</source>
        <translation>&apos;%1&apos; ist kein gültiges Argument einer Startoption.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>The character U+%1 cannot be stored in a configuration.</source>
        <translation>Das Zeichen U+%1 kann nicht in einer Konfiguration gespeichert werden.</translation>
    </message>
</context>
</TS>
