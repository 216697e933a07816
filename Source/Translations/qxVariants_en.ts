<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>qxNodeMenu</name>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variants made</source>
        <translation>
            <numerusform>%n variant made</numerusform>
            <numerusform>%n variants made</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries of &quot;%1&quot; are new or other than before</source>
        <translation>
            <numerusform>%n entry of &quot;%1&quot; is new or other than before</numerusform>
            <numerusform>%n entries of &quot;%1&quot; are new or other than before</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxRecovery</name>
    <message numerus="yes">
        <source>%n steps can be recovered. The file stays as it is until you save.</source>
        <translation>
            <numerusform>%n step can be recovered. The file stays as it is until you save.</numerusform>
            <numerusform>%n steps can be recovered. The file stays as it is until you save.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSceneTree</name>
    <message numerus="yes">
        <source>%n found</source>
        <translation>
            <numerusform>%n found</numerusform>
            <numerusform>%n found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxScriptsDialog</name>
    <message numerus="yes">
        <source>... and %n more characters, which are not shown here</source>
        <translation>
            <numerusform>... and one more character, which is not shown here</numerusform>
            <numerusform>... and %n more characters, which are not shown here</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&amp;Trust All %n</source>
        <translation>
            <numerusform>&amp;Trust</numerusform>
            <numerusform>&amp;Trust All %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSetEdits</name>
    <message numerus="yes">
        <source>Delete %n sets</source>
        <translation>
            <numerusform>Delete %n set</numerusform>
            <numerusform>Delete %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %n sets</source>
        <translation>
            <numerusform>Move %n set</numerusform>
            <numerusform>Move %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Duplicate %n sets</source>
        <translation>
            <numerusform>Duplicate %n set</numerusform>
            <numerusform>Duplicate %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Previews of %n sets</source>
        <translation>
            <numerusform>Preview of %n set</numerusform>
            <numerusform>Previews of %n sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSetForm</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxSetsModel</name>
    <message numerus="yes">
        <source>%n states</source>
        <translation>
            <numerusform>%n state</numerusform>
            <numerusform>%n states</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantSetsDock</name>
    <message numerus="yes">
        <source>%n sets found</source>
        <translation>
            <numerusform>%n set found</numerusform>
            <numerusform>%n sets found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantTexts</name>
    <message numerus="yes">
        <source>Make %n variants</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; moves %n things of that name.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options from &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n variants to &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxWorkbenchWindow</name>
    <message numerus="yes">
        <source>%n nodes picked, the last one: %1 (%2)</source>
        <translation>
            <numerusform>%n node picked, the last one: %1 (%2)</numerusform>
            <numerusform>%n nodes picked, the last one: %1 (%2)</numerusform>
        </translation>
    </message>
</context>
</TS>
