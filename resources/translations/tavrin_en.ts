<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CleanupTexts</name>
    <message numerus="yes">
        <source>%n volume(s), %1</source>
        <translation>
            <numerusform>%n volume, %1</numerusform>
            <numerusform>%n volumes, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Formatters</name>
    <message numerus="yes">
        <source>%n year(s) ago</source>
        <translation>
            <numerusform>%n year ago</numerusform>
            <numerusform>%n years ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n month(s) ago</source>
        <translation>
            <numerusform>%n month ago</numerusform>
            <numerusform>%n months ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n week(s) ago</source>
        <translation>
            <numerusform>%n week ago</numerusform>
            <numerusform>%n weeks ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>%n day ago</numerusform>
            <numerusform>%n days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>%n hour ago</numerusform>
            <numerusform>%n hours ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>%n minute ago</numerusform>
            <numerusform>%n minutes ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n second(s) ago</source>
        <translation>
            <numerusform>%n second ago</numerusform>
            <numerusform>%n seconds ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetView</name>
    <message numerus="yes">
        <source>+ %n more alert(s)</source>
        <translation>
            <numerusform>+ %n more alert</numerusform>
            <numerusform>+ %n more alerts</numerusform>
        </translation>
    </message>
</context>
</TS>
