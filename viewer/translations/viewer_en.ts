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
<context>
    <name>ImageSaving</name>
    <message numerus="yes">
        <source>The recording ended after %n image(s). %1</source>
        <translation>
            <numerusform>The recording ended after %n image. %1</numerusform>
            <numerusform>The recording ended after %n images. %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were left out, since the disk was too slow.</source>
        <translation>
            <numerusform>%n image was left out, since the disk was too slow.</numerusform>
            <numerusform>%n images were left out, since the disk was too slow.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n image(s) were recorded to %1.</source>
        <translation>
            <numerusform>%n image was recorded to %1.</numerusform>
            <numerusform>%n images were recorded to %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
