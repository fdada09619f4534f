<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CleanupPreview</name>
    <message numerus="yes">
        <source> • %n left out</source>
        <translation>
            <numerusform> • %n left out</numerusform>
            <numerusform> • %n left out</numerusform>
        </translation>
    </message>
</context>
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
    <name>EndDialog</name>
    <message numerus="yes">
        <source>%1 %n process(es) run below it.</source>
        <translation>
            <numerusform>%1 %n process runs below it.</numerusform>
            <numerusform>%1 %n processes run below it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n process(es)?</source>
        <translation>
            <numerusform>Force kill %n process?</numerusform>
            <numerusform>Force kill %n processes?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Quit %n process(es)?</source>
        <translation>
            <numerusform>Quit %n process?</numerusform>
            <numerusform>Quit %n processes?</numerusform>
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
    <name>InspectorPanel</name>
    <message numerus="yes">
        <source>%n open file(s)</source>
        <translation>
            <numerusform>%n open file</numerusform>
            <numerusform>%n open files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LeftoverTexts</name>
    <message numerus="yes">
        <source>Stopped: removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>Stopped: removed %n folder, freed ~%1</numerusform>
            <numerusform>Stopped: removed %n folders, freed ~%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Removed %n folder(s), freed ~%1</source>
        <translation>
            <numerusform>Removed %n folder, freed ~%1</numerusform>
            <numerusform>Removed %n folders, freed ~%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n project(s) found</source>
        <translation>
            <numerusform>%n project found</numerusform>
            <numerusform>%n projects found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NothingFound</name>
    <message numerus="yes">
        <source>Min RAM of %1 MB hides %n more.</source>
        <translation>
            <numerusform>Min RAM of %1 MB hides %n more.</numerusform>
            <numerusform>Min RAM of %1 MB hides %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The group %1 hides %n more.</source>
        <translation>
            <numerusform>The group %1 hides %n more.</numerusform>
            <numerusform>The group %1 hides %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search hides %n more.</source>
        <translation>
            <numerusform>The search hides %n more.</numerusform>
            <numerusform>The search hides %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The filters together hide %n process(es).</source>
        <translation>
            <numerusform>The filters together hide %n process.</numerusform>
            <numerusform>The filters together hide %n processes.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NotificationPlan</name>
    <message numerus="yes">
        <source>%n large session(s)</source>
        <translation>
            <numerusform>%n large session</numerusform>
            <numerusform>%n large sessions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle agent(s)</source>
        <translation>
            <numerusform>%n idle agent</numerusform>
            <numerusform>%n idle agents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessMenu</name>
    <message numerus="yes">
        <source>Quit %n row(s)…</source>
        <translation>
            <numerusform>Quit %n row…</numerusform>
            <numerusform>Quit %n rows…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Force kill %n row(s)…</source>
        <translation>
            <numerusform>Force kill %n row…</numerusform>
            <numerusform>Force kill %n rows…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProcessesView</name>
    <message numerus="yes">
        <source>%1 of %n process(es)</source>
        <translation>
            <numerusform>%1 of %n process</numerusform>
            <numerusform>%1 of %n processes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 names of %n process(es)</source>
        <translation>
            <numerusform>%1 names of %n process</numerusform>
            <numerusform>%1 names of %n processes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProjectLeftoversSheet</name>
    <message numerus="yes">
        <source>Remove %n folder(s) (%1)…</source>
        <translation>
            <numerusform>Remove %n folder (%1)…</numerusform>
            <numerusform>Remove %n folders (%1)…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n folder(s)?</source>
        <translation>
            <numerusform>Remove %n folder?</numerusform>
            <numerusform>Remove %n folders?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Remains</name>
    <message numerus="yes">
        <source>%n older one(s)</source>
        <translation>
            <numerusform>%n older one</numerusform>
            <numerusform>%n older ones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 runs %n time(s) under %2</source>
        <translation>
            <numerusform>%1 runs %n time under %2</numerusform>
            <numerusform>%1 runs %n times under %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SessionTexts</name>
    <message numerus="yes">
        <source>%n agent(s)</source>
        <translation>
            <numerusform>%n agent</numerusform>
            <numerusform>%n agents</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n server(s)</source>
        <translation>
            <numerusform>%n server</numerusform>
            <numerusform>%n servers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n dev server(s)</source>
        <translation>
            <numerusform>%n dev server</numerusform>
            <numerusform>%n dev servers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n browser(s)</source>
        <translation>
            <numerusform>%n browser</numerusform>
            <numerusform>%n browsers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n command(s)</source>
        <translation>
            <numerusform>%n command</numerusform>
            <numerusform>%n commands</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n idle</source>
        <translation>
            <numerusform>%n idle</numerusform>
            <numerusform>%n idle</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n session(s)</source>
        <translation>
            <numerusform>%n session</numerusform>
            <numerusform>%n sessions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation>
            <numerusform>%n process</numerusform>
            <numerusform>%n processes</numerusform>
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
