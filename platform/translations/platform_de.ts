<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ParameterCollection::SimpleCollection</name>
    <message>
        <source>%1: &quot;%2&quot; is not allowed, expected %3</source>
        <translation>%1: „%2“ ist nicht erlaubt, erwartet: %3</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is out of range, allowed are %3 to %4</source>
        <translation>%1: „%2“ liegt außerhalb des Bereichs, erlaubt sind %3 bis %4</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: „%2“ ist nicht erlaubt, erwartet: %3 plus ein Vielfaches von %4</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 oder 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 kann jetzt nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 cannot be executed now</source>
        <translation>%1 kann jetzt nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>%1: there is a parameter called &quot;%2&quot; already</source>
        <translation>%1: Es gibt schon einen Parameter namens „%2“</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no name for a parameter</source>
        <translation>%1: „%2“ ist kein Name für einen Parameter</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no feature that can be selected</source>
        <translation>%1: „%2“ ist kein Merkmal, das ausgewählt werden kann</translation>
    </message>
</context>
</TS>
