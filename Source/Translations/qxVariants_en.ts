<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>qxSetEdits</name>
    <message numerus="yes">
        <source>Delete %n sets</source>
        <translation>
            <numerusform>Delete %n set</numerusform>
            <numerusform>Delete %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n sets</source>
        <translation>
            <numerusform>Move %n set</numerusform>
            <numerusform>Move %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n sets</source>
        <translation>
            <numerusform>Duplicate %n set</numerusform>
            <numerusform>Duplicate %n sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSetsModel</name>
    <message numerus="yes">
        <source>%n states</source>
        <translation>
            <numerusform>%n state</numerusform>
            <numerusform>%n states</numerusform>
        </translation>
    </message>
</context>
</TS>
