<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Host</name>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 is active and holds %n file.</numerusform>
            <numerusform>%2 is active and holds %n files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 holds %n file.</numerusform>
            <numerusform>%2 holds %n files.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n file, %1</numerusform>
            <numerusform>%n files, %1</numerusform>
        </translation>
    </message>
</context>
</TS>
