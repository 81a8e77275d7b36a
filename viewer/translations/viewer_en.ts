<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n result(s)</source>
        <translation>
            <numerusform>%n result</numerusform>
            <numerusform>%n results</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s), %1 of them at a higher level</source>
        <translation>
            <numerusform>%n result, %1 of them at a higher level</numerusform>
            <numerusform>%n results, %1 of them at a higher level</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message numerus="yes">
        <source>(%n earlier message(s))</source>
        <translation>
            <numerusform>(%n earlier message)</numerusform>
            <numerusform>(%n earlier messages)</numerusform>
        </translation>
    </message>
</context>
</TS>
