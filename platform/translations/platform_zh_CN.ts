<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ParameterCollection::SimpleCollection</name>
    <message>
        <source>%1: "%2" is not allowed, expected %3</source>
        <translation>%1：不允许“%2”，应为%3</translation>
    </message>
    <message>
        <source>%1: "%2" is out of range, allowed are %3 to %4</source>
        <translation>%1：“%2”超出范围，允许的范围为 %3 到 %4</translation>
    </message>
    <message>
        <source>%1: "%2" is not allowed, expected %3 plus a multiple of %4</source>
        <translation>%1：不允许“%2”，应为 %3 加上 %4 的倍数</translation>
    </message>
    <message>
        <source>an integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>true, false, 1 or 0</source>
        <translation>true、false、1 或 0</translation>
    </message>
    <message>
        <source>no text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>%1 cannot be written now</source>
        <translation>%1 现在不可写</translation>
    </message>
    <message>
        <source>%1 cannot be executed now</source>
        <translation>%1 现在不可执行</translation>
    </message>
    <message>
        <source>%1: there is a parameter called "%2" already</source>
        <translation>%1：已有名为“%2”的参数</translation>
    </message>
    <message>
        <source>%1: "%2" is no name for a parameter</source>
        <translation>%1：“%2”不能用作参数名</translation>
    </message>
    <message>
        <source>%1: "%2" is no feature that can be selected</source>
        <translation>%1：“%2”不是可被选择的参数</translation>
    </message>
</context>
</TS>
