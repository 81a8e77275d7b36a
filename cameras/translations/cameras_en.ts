<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Cameras::Description</name>
    <message numerus="yes">
        <source>%n feature(s) of %1 not read: one may take %2 evaluations, all together %3 (%4)</source>
        <translation>
            <numerusform>%n feature of %1 is not read: one may take %2 evaluations, all together %3 (%4)</numerusform>
            <numerusform>%n features of %1 are not read: one may take %2 evaluations, all together %3 (%4)</numerusform>
        </translation>
    </message>
</context>
</TS>
