<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FeatureTreeWidget</name>
    <message numerus="yes">
        <source>%n feature(s) found</source>
        <translation>
            <numerusform>%n feature found</numerusform>
            <numerusform>%n features found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %n more at a higher level</source>
        <translation>
            <numerusform>%1, %n more at a higher level</numerusform>
            <numerusform>%1, %n more at a higher level</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SettingsReport</name>
    <message numerus="yes">
        <source>%n set</source>
        <translation>
            <numerusform>%n set</numerusform>
            <numerusform>%n set</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unchanged</numerusform>
            <numerusform>%n unchanged</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n refused</source>
        <translation>
            <numerusform>%n refused</numerusform>
            <numerusform>%n refused</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n missing</numerusform>
            <numerusform>%n missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n read back differently</source>
        <translation>
            <numerusform>%n read back differently</numerusform>
            <numerusform>%n read back differently</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not tried</source>
        <translation>
            <numerusform>%n not tried</numerusform>
            <numerusform>%n not tried</numerusform>
        </translation>
    </message>
</context>
</TS>
