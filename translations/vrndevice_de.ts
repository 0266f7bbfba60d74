<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>vrndevice</name>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print JSON instead of text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value of %1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 must be %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The argument %1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The argument &apos;%1&apos; is one too many.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 Try &apos;vrndevice %1 --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads, checks and changes configurations of servo drives and motion controllers, and the files that the devices keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help; behind a command, the command&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not done, findings or differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bad usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unreadable input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vrndevice COMMAND [ARGUMENTS]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit codes: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: vrndevice %1 COMMAND [ARGUMENTS]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The configuration has no device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The file could not be saved: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The configuration to change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Series of the drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the drive; by default made from its drive number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive number 0 to 254; by default the next free one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--type must be KD2_drive or KD3_drive.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--id must be a number from 0 to 254.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The drive number %2 is in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added drive %1: %2, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a drive to the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The shell: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print a script by which a shell completes command lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The languages in which messages are wanted, the preferred one first, separated by colons; it counts unless the locale is C.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The locale: the first of them that is set. In a language for which there is no catalogue, and in the locale C, all texts are English. Numbers and dates are the same in every locale.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If it is set and not empty, nothing is printed in colour.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A configuration: the device, its drives and plug-ins, and all files that belong to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The names that a device and its drives were given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Ethernet settings of a device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the operating system of a device is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogues of translated texts, as seen from the program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>configurations of servo drives and motion controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synopsis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results go to standard output, diagnostics to standard error. What programs read should be asked for with --json: its keys and values do not depend on the language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Environment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new configuration with two drives, and a look at it:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fixed address, and a check of what the device will read:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See also</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the manual page, as man(1) reads it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code of a system message, 1024 to 1151 (0x400 to 0x47f).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no system message: they are 1024 to 1151.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell what system messages of a device mean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The slot is missing: OM and a number, such as OM1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no slot: OM and a number, such as OM1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The interface is missing: two letters or more, such as EC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no interface: two letters or more, such as EC.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hardware version is missing: H and a number, such as H2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no hardware version: H and a number, such as H2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The software version is missing: V and two numbers, such as V1_3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no software version: V and two numbers, such as V1_3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The suffix is missing, such as .%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind the versions there may be &apos;_&apos; and a text, and then &apos;.&apos; and a suffix, both of letters, digits and &apos;_&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name of option-module firmware, also with directories; the file need not be there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLOT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INTERFACE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HARDWARE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SOFTWARE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell what a firmware file for an option module is for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network.conf to check.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: nothing is wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find what is wrong with a network.conf.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: These lines would be lost. Correct or remove them first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network.conf to change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A key of the file and its new value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start from the defaults if there is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not KEY=VALUE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Ethernet settings in a network.conf.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The network.conf to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the Ethernet settings that a device reads from a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a configuration with one device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Platform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Board support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolchain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kernel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The os-release to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what the operating system of a device is made of.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>parameter values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>parameter definition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>object dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fault texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>additional file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FPGA image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPC UA model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EtherCAT master</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drive parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KD2 firmware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KD2 logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KD2 parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KIND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ON THE DEVICE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IN THE PROJECT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The configuration to read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List every file with its directories on the device and in the project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings document to change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the drive with that number, 0 to 254; may be repeated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a new document if there is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--drive must be a number from 0 to 254, &apos;=&apos; and a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither --name nor --drive is given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name a device and its drives.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings document to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the names that a device was given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show a configuration as a tree.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;. Try &apos;vrndevice --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no command &apos;%1&apos;. Did you mean &apos;%2&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command given. Try &apos;vrndevice --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which command of &apos;%1&apos;? Try &apos;vrndevice %1 --help&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
