<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CDeviceConfigurationFile</name>
    <message>
        <source>The device configuration file was created with a previous version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device configuration file was created with a later version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sub-device &apos;%1&apos; is left out: all drive numbers are used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sub-device &apos;%1&apos; has no drive number of its own and gets %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hardware identity &apos;%1&apos; of &apos;%2&apos; cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDeviceConfigurationFile10</name>
    <message>
        <source>The configuration file was created with a previous version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The configuration file was created with a later version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device configuration file could not be opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device configuration file buffer could not be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project path of &apos;%1&apos; is invalid and will be removed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDeviceSettingsFileBase</name>
    <message>
        <source>Device settings file version error: required %1, existing %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CDeviceSystemMessage</name>
    <message>
        <source>System: Mount Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APP partition can not be mounted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hardware not configured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HW.xml not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too much errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application start: execution_counter &gt; 5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical boot error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical error discovered on startup. Firmware is not started.
See &apos;/var/log/handleBootError.log&apos; or &apos;/var/log/boot_err&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 1: SIGHUP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hangup detected on controlling terminal or death of controlling process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 2: SIGINT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupt from keyboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 3: SIGQUIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit from keyboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 4: SIGILL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal Instruction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 5: SIGTRAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trace/breakpoint trap.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 6: SIGABRT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program terminated abnormally.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 7: SIGBUS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bus error (bad memory access).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 8: SIGFPE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating point exception.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 9: SIGKILL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kill signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 10: SIGUSR1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined signal 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 11: SIGSEGV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid memory reference.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 12: SIGUSR2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User-defined signal 2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 13: SIGPIPE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken pipe: write to pipe with no readers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 14: SIGALRM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timer signal from alarm().</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 15: SIGTERM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Termination signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 16: SIGSTKFLT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stack fault on coprocessor (unused).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 17: SIGCHLD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child stopped or terminated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 18: SIGCONT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue if stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 19: SIGSTOP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 20: SIGTSTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop typed at terminal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 21: SIGTTIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminal input for background process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 22: SIGTTOU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminal output for background process.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 23: SIGURG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Urgent condition on socket.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 24: SIGXCPU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CPU time limit exceeded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 25: SIGXFSZ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File size limit exceeded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 26: SIGVTALRM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual alarm clock.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 27: SIGPROF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profiling timer expired.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 28: SIGWINCH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window resize signal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 29: SIGPOLL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pollable event.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 30: SIGPWR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power failure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 31: SIGSYS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bad argument to routine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 32: SIGRTMIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real-time 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal 64: SIGRTMAX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real-time 31 (Max).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signal %1: SIGRTMIN+%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Real-time %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CNetworkSettingsCheck</name>
    <message>
        <source>&apos;%1&apos; is none of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no IPv4 address, such as 192.168.1.10.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no subnet mask, such as 255.255.255.0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no port number, 1 to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no kernel log level, 0 to 7.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A section begins: no key in it is read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is neither KEY=value nor a comment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This line is not read: it belongs to a quotation mark or backslash before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This replaces what line %1 tells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mode STATIC needs an address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gateway %1 is not in the subnet of the address %2, mask %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>COptionModuleFileName</name>
    <message>
        <source>Option Modul slot %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Analog interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expansion IO modul</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EtherCAT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAN-Bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown interface</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CXmlAbstractVornFile</name>
    <message>
        <source>This is no valid UTF-16 text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document holds no element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document ends before the element &apos;%1&apos; is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This character cannot stand here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What begins here is not closed before the document ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The CDATA section is not closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document ends within a character.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; must be closed first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element has two attributes of this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is something behind the root element.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entity is not declared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reference is to a character that XML cannot carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The XML declaration must stand at the very beginning.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoding is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is not in the encoding that it declares.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The XML declaration is not well-formed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The XML version &apos;%1&apos; is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A document type declaration with declarations of its own is not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entity &apos;%1&apos; is not declared.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name has more than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elements are nested more than %1 deep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has more than %2 attributes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has more than %1 nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file would be larger than %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A comment holds &apos;--&apos; or ends in &apos;-&apos;, which XML cannot carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A processing instruction holds &apos;?&gt;&apos;, which XML cannot carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of an element or attribute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; holds the character U+%2, which XML cannot carry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document type is &apos;%1&apos;, but &apos;%2&apos; is required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The version is &apos;%1&apos;, but &apos;%2&apos; is required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no document to save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be a document type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for the document.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileStorage</name>
    <message>
        <source>This is no regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the new content is in place, but a power cut may undo it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is larger than %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
