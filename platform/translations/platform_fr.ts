<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ParameterCollection::SimpleCollection</name>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1 : « %2 » n'est pas autorisé, attendu : %3</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1 : « %2 » est hors plage, valeurs autorisées de %3 à %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1 : « %2 » n'est pas autorisé, attendu : %3 plus un multiple de %4</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>un nombre entier</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true, false, 1 ou 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>aucun texte</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 ne peut pas être écrit maintenant</translation>
    </message>
    <message>
        <source>%1 cannot be executed now</source>
        <translation>%1 ne peut pas être exécuté maintenant</translation>
    </message>
    <message>
        <source>%1: there is a parameter called "%2" already</source>
        <translation>%1 : il existe déjà un paramètre nommé « %2 »</translation>
    </message>
    <message>
        <source>%1: "%2" is no name for a parameter</source>
        <translation>%1 : « %2 » ne convient pas comme nom de paramètre</translation>
    </message>
    <message>
        <source>%1: "%2" is no feature that can be selected</source>
        <translation>%1 : « %2 » n'est pas un paramètre qui peut être sélectionné</translation>
    </message>
</context>
</TS>
