<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>qxEntryEdits</name>
    <message numerus="yes">
        <source>State of %n entries of &quot;%1&quot;</source>
        <translation>
            <numerusform>State of %n entry of &quot;%1&quot;</numerusform>
            <numerusform>State of %n entries of &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Shown state of %n entries of &quot;%1&quot;</source>
        <translation>
            <numerusform>Shown state of %n entry of &quot;%1&quot;</numerusform>
            <numerusform>Shown state of %n entries of &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n entries from &quot;%1&quot;</source>
        <translation>
            <numerusform>Remove %n entry from &quot;%1&quot;</numerusform>
            <numerusform>Remove %n entries from &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n entries to &quot;%1&quot;</source>
        <translation>
            <numerusform>Add %n entry to &quot;%1&quot;</numerusform>
            <numerusform>Add %n entries to &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add what %n nodes show to &quot;%1&quot;</source>
        <translation>
            <numerusform>Add what %n node shows to &quot;%1&quot;</numerusform>
            <numerusform>Add what %n nodes show to &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n variants were made for it.</source>
        <translation>
            <numerusform>%n variant was made for it.</numerusform>
            <numerusform>%n variants were made for it.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxGalleryBar</name>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n missing</numerusform>
            <numerusform>%n missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n out of date</source>
        <translation>
            <numerusform>%n out of date</numerusform>
            <numerusform>%n out of date</numerusform>
        </translation>
    </message>
</context>
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
    <name>qxProblemFixes</name>
    <message numerus="yes">
        <source>Remove %n entries</source>
        <translation>
            <numerusform>Remove the entry</numerusform>
            <numerusform>Remove %n entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n default viewpoints</source>
        <translation>
            <numerusform>Remove the default viewpoint</numerusform>
            <numerusform>Remove %n default viewpoints</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n hotkeys</source>
        <translation>
            <numerusform>Remove the hotkey</numerusform>
            <numerusform>Remove %n hotkeys</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to their variants</source>
        <translation>
            <numerusform>Add the option to its variant</numerusform>
            <numerusform>Add %n options to their variants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options</source>
        <translation>
            <numerusform>Remove the option</numerusform>
            <numerusform>Remove %n options</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Clear %n default states</source>
        <translation>
            <numerusform>Clear the default state</numerusform>
            <numerusform>Clear %n default states</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n sets</source>
        <translation>
            <numerusform>Delete the set</numerusform>
            <numerusform>Delete %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n groups</source>
        <translation>
            <numerusform>Delete the group</numerusform>
            <numerusform>Delete %n groups</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants with their entries in sets</source>
        <translation>
            <numerusform>Delete the variant with its entries in sets</numerusform>
            <numerusform>Delete %n variants with their entries in sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxProblemRepairs</name>
    <message numerus="yes">
        <source>Repair %n names</source>
        <translation>
            <numerusform>Repair one name</numerusform>
            <numerusform>Repair %n names</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxProblemsDock</name>
    <message numerus="yes">
        <source>%n errors</source>
        <translation>
            <numerusform>One error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warnings</source>
        <translation>
            <numerusform>One warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hints</source>
        <translation>
            <numerusform>One hint</numerusform>
            <numerusform>%n hints</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems are not shown.</source>
        <translation>
            <numerusform>One problem is not shown.</numerusform>
            <numerusform>%n problems are not shown.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names were repaired.</source>
        <translation>
            <numerusform>One name was repaired.</numerusform>
            <numerusform>%n names were repaired.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxProblemsModel</name>
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1 (and one more)</numerusform>
            <numerusform>%1 (and %n more)</numerusform>
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
    <name>qxSetsModel</name>
    <message numerus="yes">
        <source>%n states</source>
        <translation>
            <numerusform>%n state</numerusform>
            <numerusform>%n states</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %n sets</source>
        <translation>
            <numerusform>Group %1, %n set</numerusform>
            <numerusform>Group %1, %n sets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantActions</name>
    <message numerus="yes">
        <source>%n sets have entries of what you delete.</source>
        <translation>
            <numerusform>%n set has entries of what you delete.</numerusform>
            <numerusform>%n sets have entries of what you delete.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Entries of %n sets were deleted.</source>
        <translation>
            <numerusform>Entries of %n set were deleted.</numerusform>
            <numerusform>Entries of %n sets were deleted.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Entries of %n sets were kept.</source>
        <translation>
            <numerusform>Entries of %n set were kept.</numerusform>
            <numerusform>Entries of %n sets were kept.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; has %n new states.</source>
        <translation>
            <numerusform>&quot;%1&quot; has %n new state.</numerusform>
            <numerusform>&quot;%1&quot; has %n new states.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantMaker</name>
    <message numerus="yes">
        <source>%n switches</source>
        <translation>
            <numerusform>%n switch</numerusform>
            <numerusform>%n switches</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switch materials</source>
        <translation>
            <numerusform>%n switch material</numerusform>
            <numerusform>%n switch materials</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lights</source>
        <translation>
            <numerusform>%n light</numerusform>
            <numerusform>%n lights</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n switches among the overlays</source>
        <translation>
            <numerusform>%n switch among the overlays</numerusform>
            <numerusform>%n switches among the overlays</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n nodes with transform states</source>
        <translation>
            <numerusform>%n node with transform states</numerusform>
            <numerusform>%n nodes with transform states</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n selected nodes</source>
        <translation>
            <numerusform>%1 of the selected node</numerusform>
            <numerusform>%1 of %n selected nodes</numerusform>
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
        <translation>
            <numerusform>Make %n variant</numerusform>
            <numerusform>Make %n variants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>&quot;%1&quot; moves %n things of that name.</source>
        <translation>
            <numerusform>&quot;%1&quot; moves %n thing of that name.</numerusform>
            <numerusform>&quot;%1&quot; moves %n things of that name.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n options to &quot;%1&quot;</source>
        <translation>
            <numerusform>Add %n option to &quot;%1&quot;</numerusform>
            <numerusform>Add %n options to &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Delete %n variants</source>
        <translation>
            <numerusform>Delete %n variant</numerusform>
            <numerusform>Delete %n variants</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n options from &quot;%1&quot;</source>
        <translation>
            <numerusform>Remove %n option from &quot;%1&quot;</numerusform>
            <numerusform>Remove %n options from &quot;%1&quot;</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add %n variants to &quot;%1&quot;</source>
        <translation>
            <numerusform>Add %n variant to &quot;%1&quot;</numerusform>
            <numerusform>Add %n variants to &quot;%1&quot;</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantUses</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>In %n sets</source>
        <translation>
            <numerusform>In %n set</numerusform>
            <numerusform>In %n sets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Moves %n nodes</source>
        <translation>
            <numerusform>Moves %n node</numerusform>
            <numerusform>Moves %n nodes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>qxVariantsDock</name>
    <message numerus="yes">
        <source>%n variants found</source>
        <translation>
            <numerusform>%n variant found</numerusform>
            <numerusform>%n variants found</numerusform>
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
