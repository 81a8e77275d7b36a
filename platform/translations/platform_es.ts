<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ParameterCollection::SimpleCollection</name>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1: «%2» no está permitido, se espera %3</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1: «%2» está fuera del intervalo permitido, de %3 a %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: «%2» no está permitido, se espera %3 más un múltiplo de %4</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un número</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 o 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>ningún texto</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 no se puede escribir ahora</translation>
    </message>
    <message>
        <source>%1 cannot be executed now</source>
        <translation>%1 no se puede ejecutar ahora</translation>
    </message>
    <message>
        <source>%1: there is a parameter called "%2" already</source>
        <translation>%1: ya existe un parámetro llamado «%2»</translation>
    </message>
    <message>
        <source>%1: "%2" is no name for a parameter</source>
        <translation>%1: «%2» no es un nombre válido para un parámetro</translation>
    </message>
    <message>
        <source>%1: "%2" is no feature that can be selected</source>
        <translation>%1: «%2» no es un parámetro que se pueda seleccionar</translation>
    </message>
</context>
</TS>
