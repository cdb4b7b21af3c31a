<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>viewer</name>
    <message numerus="yes">
        <source>%1: %n triangles without a finite place were left out</source>
        <translation>
            <numerusform>%1: %n triangle without a finite place was left out</numerusform>
            <numerusform>%1: %n triangles without a finite place were left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scene plates</source>
        <translation>
            <numerusform>%n scene plate</numerusform>
            <numerusform>%n scene plates</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>viewer::StatusLine</name>
    <message numerus="yes">
        <source>Selected: %1 and %n more</source>
        <translation>
            <numerusform>Selected: %1 and %n more</numerusform>
            <numerusform>Selected: %1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangles</source>
        <translation>
            <numerusform>%Ln triangle</numerusform>
            <numerusform>%Ln triangles</numerusform>
        </translation>
    </message>
</context>
</TS>
