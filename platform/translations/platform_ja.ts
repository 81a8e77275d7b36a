<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ParameterCollection::SimpleCollection</name>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1: 「%2」は使用できません。%3 を指定してください</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1: 「%2」は範囲外です。%3 から %4 までの値を指定できます</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1: 「%2」は使用できません。%3 に %4 の倍数を加えた値を指定してください</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true、false、1、0 のいずれか</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>テキストなし</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 には今は書き込めません</translation>
    </message>
    <message>
        <source>%1 cannot be executed now</source>
        <translation>%1 は今は実行できません</translation>
    </message>
    <message>
        <source>%1: there is a parameter called "%2" already</source>
        <translation>%1: 「%2」というパラメーターは既にあります</translation>
    </message>
    <message>
        <source>%1: "%2" is no name for a parameter</source>
        <translation>%1: 「%2」はパラメーターの名前として使用できません</translation>
    </message>
    <message>
        <source>%1: "%2" is no feature that can be selected</source>
        <translation>%1: 「%2」は選択の対象にできるパラメーターではありません</translation>
    </message>
</context>
</TS>
