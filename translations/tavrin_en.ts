<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Tavrin</name>
    <message>
        <source>%1: the words of its first page are not those of the map&apos;s verifier</source>
        <comment>a PDF</comment>
        <translation>%1: the words of its first page are not those of the map&apos;s verifier</translation>
    </message>
    <message>
        <source>no place</source>
        <comment>fault of an entry</comment>
        <translation>no place</translation>
    </message>
    <message>
        <source>%1 entries, %2 with a place, %3 with their title printed there</source>
        <comment>a map held against its PDF</comment>
        <translation>%1 entries, %2 with a place, %3 with their title printed there</translation>
    </message>
    <message>
        <source>%1: valid, %2 entries</source>
        <comment>a map</comment>
        <translation>%1: valid, %2 entries</translation>
    </message>
    <message>
        <source>%1: %2, %3 entries</source>
        <comment>a map that was written</comment>
        <translation>%1: %2, %3 entries</translation>
    </message>
    <message>
        <source>, lines %1 to %2</source>
        <comment>behind a number</comment>
        <translation>, lines %1 to %2</translation>
    </message>
    <message>
        <source>no place in the PDF</source>
        <comment>place of an entry</comment>
        <translation>no place in the PDF</translation>
    </message>
    <message>
        <source>%1 (printed %2)</source>
        <comment>page number</comment>
        <translation>%1 (printed %2)</translation>
    </message>
    <message>
        <source>page %1 at %2, %3</source>
        <comment>place of an entry</comment>
        <translation>page %1 at %2, %3</translation>
    </message>
    <message>
        <source>%1, revision %2, %3 entries, %4</source>
        <comment>a specification</comment>
        <translation>%1, revision %2, %3 entries, %4</translation>
    </message>
    <message>
        <source>PDF of %1 pages bound</source>
        <comment>a specification</comment>
        <translation>PDF of %1 pages bound</translation>
    </message>
    <message>
        <source>no PDF bound</source>
        <comment>a specification</comment>
        <translation>no PDF bound</translation>
    </message>
    <message>
        <source>%1: unknown</source>
        <comment>a reference</comment>
        <translation>%1: unknown</translation>
    </message>
    <message>
        <source>label &quot;%1&quot; stands twice; only the first entry counts</source>
        <comment>fault of a map</comment>
        <translation>label &quot;%1&quot; stands twice; only the first entry counts</translation>
    </message>
    <message>
        <source>entry &quot;%1&quot;: no entry has the related label &quot;%2&quot;</source>
        <comment>fault of a map</comment>
        <translation>entry &quot;%1&quot;: no entry has the related label &quot;%2&quot;</translation>
    </message>
    <message>
        <source>entry &quot;%1&quot;: its spec URL %2 does not lead back to it</source>
        <comment>fault of a map</comment>
        <translation>entry &quot;%1&quot;: its spec URL %2 does not lead back to it</translation>
    </message>
    <message>
        <source>title</source>
        <comment>where a search matched</comment>
        <translation>title</translation>
    </message>
    <message>
        <source>number</source>
        <comment>where a search matched</comment>
        <translation>number</translation>
    </message>
    <message>
        <source>keyword %1</source>
        <comment>where a search matched</comment>
        <translation>keyword %1</translation>
    </message>
    <message>
        <source>with punctuation left out</source>
        <comment>how a search matched</comment>
        <translation>with punctuation left out</translation>
    </message>
    <message>
        <source>nothing found</source>
        <comment>result of a search</comment>
        <translation>nothing found</translation>
    </message>
    <message>
        <source>1 hit</source>
        <comment>result of a search</comment>
        <translation>1 hit</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <comment>result of a search</comment>
        <translation>%1 hits</translation>
    </message>
    <message>
        <source>%1 of %2 hits; --limit 0 shows all</source>
        <comment>result of a search</comment>
        <translation>%1 of %2 hits; --limit 0 shows all</translation>
    </message>
    <message>
        <source>matched: %1</source>
        <comment>reason of a hit</comment>
        <translation>matched: %1</translation>
    </message>
    <message>
        <source>shares: %1</source>
        <comment>words of a text and an entry</comment>
        <translation>shares: %1</translation>
    </message>
    <message>
        <source>title not on the page</source>
        <comment>fault of an entry</comment>
        <translation>title not on the page</translation>
    </message>
    <message>
        <source>title %1 points below the place</source>
        <comment>fault of an entry</comment>
        <translation>title %1 points below the place</translation>
    </message>
    <message>
        <source>title %1 points above the place</source>
        <comment>fault of an entry</comment>
        <translation>title %1 points above the place</translation>
    </message>
    <message>
        <source>%@ does not match any supported specifications.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ does not match any supported specifications.</translation>
    </message>
    <message>
        <source>Try another file.</source>
        <comment>aux file assignment error recovery suggestion</comment>
        <translation>Try another file.</translation>
    </message>
    <message>
        <source>Label</source>
        <comment>spec entry field</comment>
        <translation>Label</translation>
    </message>
    <message>
        <source>Related</source>
        <comment>spec entry field</comment>
        <translation>Related</translation>
    </message>
    <message>
        <source>Section</source>
        <comment>spec entry type</comment>
        <translation>Section</translation>
    </message>
    <message>
        <source>Chapter</source>
        <comment>spec entry type</comment>
        <translation>Chapter</translation>
    </message>
    <message>
        <source>Figure</source>
        <comment>spec entry type</comment>
        <translation>Figure</translation>
    </message>
    <message>
        <source>Table</source>
        <comment>spec entry type</comment>
        <translation>Table</translation>
    </message>
    <message>
        <source>no entry there</source>
        <comment>a point of a page</comment>
        <translation>no entry there</translation>
    </message>
    <message>
        <source>%1 entries: %2 linked, %3 without a place; %4 keywords, %5 related entries; %6 s</source>
        <comment>a map that was enhanced</comment>
        <translation>%1 entries: %2 linked, %3 without a place; %4 keywords, %5 related entries; %6 s</translation>
    </message>
    <message>
        <source>picture of %1 × %2 points</source>
        <comment>a figure or table</comment>
        <translation>picture of %1 × %2 points</translation>
    </message>
    <message>
        <source>Source</source>
        <comment>spec entry field</comment>
        <translation>Source</translation>
    </message>
    <message>
        <source>Summary</source>
        <comment>spec entry field</comment>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>spec entry field</comment>
        <translation>Preview</translation>
    </message>
    <message>
        <source>View in specification</source>
        <comment>spec entry value</comment>
        <translation>View in specification</translation>
    </message>
    <message>
        <source>More</source>
        <comment>spec entry field</comment>
        <translation>More</translation>
    </message>
    <message>
        <source>nothing imported</source>
        <comment>list of files</comment>
        <translation>nothing imported</translation>
    </message>
    <message>
        <source>%1: can&apos;t be deleted</source>
        <comment>a file</comment>
        <translation>%1: can&apos;t be deleted</translation>
    </message>
    <message>
        <source>%1: was not imported</source>
        <comment>a file</comment>
        <translation>%1: was not imported</translation>
    </message>
    <message>
        <source>%1: deleted</source>
        <comment>a file</comment>
        <translation>%1: deleted</translation>
    </message>
    <message>
        <source>%1: not imported</source>
        <comment>a file</comment>
        <translation>%1: not imported</translation>
    </message>
    <message>
        <source>%1: no map that still wants a PDF recognises it</source>
        <comment>a file</comment>
        <translation>%1: no map that still wants a PDF recognises it</translation>
    </message>
    <message>
        <source>Location</source>
        <comment>spec entry destination</comment>
        <translation>Location</translation>
    </message>
    <message>
        <source>No summary available</source>
        <comment>spec audit message</comment>
        <translation>No summary available</translation>
    </message>
    <message>
        <source>No image available</source>
        <comment>spec audit message</comment>
        <translation>No image available</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>spec entry field</comment>
        <translation>Title</translation>
    </message>
    <message>
        <source>Index</source>
        <comment>spec entry field</comment>
        <translation>Index</translation>
    </message>
    <message>
        <source>Outside of chapters</source>
        <comment>spec audit message</comment>
        <translation>Outside of chapters</translation>
    </message>
    <message>
        <source>Required %1: no entry matches</source>
        <comment>spec audit message</comment>
        <translation>Required %1: no entry matches</translation>
    </message>
    <message>
        <source>Required %1: %2 of %3 entries cited</source>
        <comment>spec audit message</comment>
        <translation>Required %1: %2 of %3 entries cited</translation>
    </message>
    <message>
        <source>%1, revision %2</source>
        <comment>spec audit message</comment>
        <translation>%1, revision %2</translation>
    </message>
    <message>
        <source>Entries cited: %1, references: %2, unknown: %3</source>
        <comment>spec audit message</comment>
        <translation>Entries cited: %1, references: %2, unknown: %3</translation>
    </message>
    <message>
        <source>Coverage: %1</source>
        <comment>spec audit message</comment>
        <translation>Coverage: %1</translation>
    </message>
    <message>
        <source>%1 of %2 covered, %3</source>
        <comment>spec audit message</comment>
        <translation>%1 of %2 covered, %3</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a share</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Required coverage: %1 %, reached: %2</source>
        <comment>spec audit message</comment>
        <translation>Required coverage: %1 %, reached: %2</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <comment>a reference</comment>
        <translation>%1 is unknown</translation>
    </message>
    <message>
        <source>nearest: %1</source>
        <comment>spec audit message</comment>
        <translation>nearest: %1</translation>
    </message>
    <message>
        <source>This specification does not allow its text to be shown elsewhere.</source>
        <comment>spec audit message</comment>
        <translation>This specification does not allow its text to be shown elsewhere.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of the language of this translation</comment>
        <translation>en</translation>
    </message>
    <message>
        <source>Audit of %1</source>
        <comment>title of a page</comment>
        <translation>Audit of %1</translation>
    </message>
    <message>
        <source>Audit</source>
        <comment>title of a page</comment>
        <translation>Audit</translation>
    </message>
    <message>
        <source>Chapters</source>
        <comment>heading of an audit</comment>
        <translation>Chapters</translation>
    </message>
    <message>
        <source>Requirements</source>
        <comment>heading of an audit</comment>
        <translation>Requirements</translation>
    </message>
    <message>
        <source>Unknown references</source>
        <comment>heading of an audit</comment>
        <translation>Unknown references</translation>
    </message>
    <message>
        <source>Cited by</source>
        <comment>spec entry field</comment>
        <translation>Cited by</translation>
    </message>
    <message>
        <source>Page</source>
        <comment>spec entry field</comment>
        <translation>Page</translation>
    </message>
    <message>
        <source>Reference</source>
        <comment>spec entry field</comment>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Show all</source>
        <comment>a folded text</comment>
        <translation>Show all</translation>
    </message>
    <message>
        <source>n/a</source>
        <comment>spec audit message</comment>
        <translation>n/a</translation>
    </message>
    <message>
        <source>&lt;no value&gt;</source>
        <comment>spec audit message</comment>
        <translation>&lt;no value&gt;</translation>
    </message>
    <message>
        <source>Find in document</source>
        <comment>Empty find field of a PDF view</comment>
        <translation>Find in document</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <comment>Button of the find bar</comment>
        <translation>Previous hit</translation>
    </message>
    <message>
        <source>Next hit</source>
        <comment>Button of the find bar</comment>
        <translation>Next hit</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button of the find bar</comment>
        <translation>Close</translation>
    </message>
    <message>
        <source>No hits</source>
        <comment>Count of the find bar</comment>
        <translation>No hits</translation>
    </message>
    <message>
        <source>No document is open.</source>
        <comment>In an empty PDF view</comment>
        <translation>No document is open.</translation>
    </message>
    <message>
        <source>Document</source>
        <comment>Accessible name of a PDF view</comment>
        <translation>Document</translation>
    </message>
    <message>
        <source>Page %1</source>
        <comment>Accessible description of a PDF view</comment>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>Menu of a PDF view</comment>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <comment>Menu of a PDF view</comment>
        <translation>Copy Link</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>Menu of a PDF view</comment>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>Menu of a PDF view</comment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <comment>Menu of a PDF view</comment>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Find…</source>
        <comment>Menu of a PDF view</comment>
        <translation>Find…</translation>
    </message>
    <message>
        <source>Inverted Pages</source>
        <comment>Menu of a PDF view</comment>
        <translation>Inverted Pages</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>Page number and number of pages</comment>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <comment>Printed page number, page and number of pages</comment>
        <translation>%1 (%2 of %3)</translation>
    </message>
    <message>
        <source>This page can&apos;t be shown.</source>
        <comment>In place of a broken page of a PDF</comment>
        <translation>This page can&apos;t be shown.</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <comment>menu item</comment>
        <translation>Copy Link</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>menu item</comment>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>menu item</comment>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>sidebar</comment>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Filter the outline</source>
        <comment>empty field of a sidebar</comment>
        <translation>Filter the outline</translation>
    </message>
    <message>
        <source>No title of the outline holds all of these words. Check their spelling, or use fewer words.</source>
        <comment>outline sidebar</comment>
        <translation>No title of the outline holds all of these words. Check their spelling, or use fewer words.</translation>
    </message>
    <message>
        <source>Title, number or keyword</source>
        <comment>empty search field of a sidebar</comment>
        <translation>Title, number or keyword</translation>
    </message>
    <message>
        <source>Search entries</source>
        <comment>sidebar</comment>
        <translation>Search entries</translation>
    </message>
    <message>
        <source>Entries found</source>
        <comment>sidebar</comment>
        <translation>Entries found</translation>
    </message>
    <message>
        <source>No entry has all of these words in its title, number or keywords. Check their spelling, or use fewer words.</source>
        <comment>search sidebar</comment>
        <translation>No entry has all of these words in its title, number or keywords. Check their spelling, or use fewer words.</translation>
    </message>
    <message>
        <source>&lt;cannot display this type&gt;</source>
        <comment>spec entry value</comment>
        <translation>&lt;cannot display this type&gt;</translation>
    </message>
    <message>
        <source>No imported specification has this reference. Check how it is written, or import another document.</source>
        <comment>summary of no entry</comment>
        <translation>No imported specification has this reference. Check how it is written, or import another document.</translation>
    </message>
    <message>
        <source>Summary of the entry</source>
        <comment>accessible name</comment>
        <translation>Summary of the entry</translation>
    </message>
    <message>
        <source>Loading…</source>
        <comment>spec entry value</comment>
        <translation>Loading…</translation>
    </message>
    <message>
        <source>Unrecognized</source>
        <comment>spec aux file match status</comment>
        <translation>Unrecognized</translation>
    </message>
    <message>
        <source>Not Loaded</source>
        <comment>spec aux file match status</comment>
        <translation>Not Loaded</translation>
    </message>
    <message>
        <source>Specification</source>
        <comment>column of the imported files</comment>
        <translation>Specification</translation>
    </message>
    <message>
        <source>Status</source>
        <comment>column of the imported files</comment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Import Errors</source>
        <comment>aux file assignment error title</comment>
        <translation>Import Errors</translation>
    </message>
    <message>
        <source>Import a supported specification to look up reference topics inline:</source>
        <comment>auxiliary file browser instruction</comment>
        <translation>Import a supported specification to look up reference topics inline:</translation>
    </message>
    <message>
        <source>Specifications</source>
        <comment>auxiliary file browser title</comment>
        <translation>Specifications</translation>
    </message>
    <message>
        <source>Import and remove</source>
        <comment>accessible name of the buttons below imported files</comment>
        <translation>Import and remove</translation>
    </message>
    <message>
        <source>Import a file</source>
        <comment>button below imported files</comment>
        <translation>Import a file</translation>
    </message>
    <message>
        <source>Remove the files of the selected rows</source>
        <comment>button below imported files</comment>
        <translation>Remove the files of the selected rows</translation>
    </message>
    <message>
        <source>View</source>
        <comment>button of an imported file</comment>
        <translation>View</translation>
    </message>
    <message>
        <source>View %1</source>
        <comment>accessible name of the button of an imported file</comment>
        <translation>View %1</translation>
    </message>
    <message>
        <source>Drop files here, or press + to choose one.</source>
        <comment>hint in the table of imported files</comment>
        <translation>Drop files here, or press + to choose one.</translation>
    </message>
    <message>
        <source>Choose a specification file to import.</source>
        <comment>auxiliary file browser open panel</comment>
        <translation>Choose a specification file to import.</translation>
    </message>
    <message>
        <source>Specifications</source>
        <comment>file type in a panel</comment>
        <translation>Specifications</translation>
    </message>
    <message>
        <source>Importing…</source>
        <comment>aux file import progress title</comment>
        <translation>Importing…</translation>
    </message>
    <message>
        <source>latest</source>
        <comment>status indicating that this version of the spec is latest</comment>
        <translation>latest</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>alert button</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>You have not imported a spec for this reference yet. Would you like to choose a file now?</source>
        <comment>no specs error prompt</comment>
        <translation>You have not imported a spec for this reference yet. Would you like to choose a file now?</translation>
    </message>
    <message>
        <source>You have not imported a spec for this reference.</source>
        <comment>no specs error message</comment>
        <translation>You have not imported a spec for this reference.</translation>
    </message>
    <message>
        <source>You have not imported any specs yet. Would you like to choose a file now?</source>
        <comment>no specs error prompt</comment>
        <translation>You have not imported any specs yet. Would you like to choose a file now?</translation>
    </message>
    <message>
        <source>You have not imported any specs yet.</source>
        <comment>no specs error message</comment>
        <translation>You have not imported any specs yet.</translation>
    </message>
    <message>
        <source>Import Specs</source>
        <comment>no specs error button</comment>
        <translation>Import Specs</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <comment>fault of a file</comment>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <comment>fault of a file</comment>
        <translation>%1 at byte %2</translation>
    </message>
    <message>
        <source>This is no list of citations.</source>
        <comment>fault of a file</comment>
        <translation>This is no list of citations.</translation>
    </message>
    <message>
        <source>New passage</source>
        <comment>a passage without text</comment>
        <translation>New passage</translation>
    </message>
    <message>
        <source>Citations (*.json)</source>
        <comment>filter of a dialog</comment>
        <translation>Citations (*.json)</translation>
    </message>
    <message>
        <source>Passages</source>
        <comment>name of a list</comment>
        <translation>Passages</translation>
    </message>
    <message>
        <source>Add a passage</source>
        <comment>button</comment>
        <translation>Add a passage</translation>
    </message>
    <message>
        <source>Remove the passage</source>
        <comment>button</comment>
        <translation>Remove the passage</translation>
    </message>
    <message>
        <source>&amp;Passage</source>
        <comment>label of a field</comment>
        <translation>&amp;Passage</translation>
    </message>
    <message>
        <source>Passage</source>
        <comment>name of a field</comment>
        <translation>Passage</translation>
    </message>
    <message>
        <source>&amp;Cites</source>
        <comment>label of a field</comment>
        <translation>&amp;Cites</translation>
    </message>
    <message>
        <source>Cited entries</source>
        <comment>name of a field</comment>
        <translation>Cited entries</translation>
    </message>
    <message>
        <source>Type a number or words of a title</source>
        <comment>placeholder of a field</comment>
        <translation>Type a number or words of a title</translation>
    </message>
    <message>
        <source>Choose in Document…</source>
        <comment>button</comment>
        <translation>Choose in Document…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <comment>menu</comment>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <comment>menu item</comment>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu item</comment>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <comment>menu item</comment>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <comment>menu item</comment>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;References</source>
        <comment>menu</comment>
        <translation>&amp;References</translation>
    </message>
    <message>
        <source>&amp;Audit…</source>
        <comment>menu item</comment>
        <translation>&amp;Audit…</translation>
    </message>
    <message>
        <source>Show &amp;Coverage in Document</source>
        <comment>menu item</comment>
        <translation>Show &amp;Coverage in Document</translation>
    </message>
    <message>
        <source>The citations could not be opened.</source>
        <comment>alert</comment>
        <translation>The citations could not be opened.</translation>
    </message>
    <message>
        <source>The citations could not be saved.</source>
        <comment>alert</comment>
        <translation>The citations could not be saved.</translation>
    </message>
    <message>
        <source>New Citations</source>
        <comment>title of a window</comment>
        <translation>New Citations</translation>
    </message>
    <message>
        <source>Open Citations</source>
        <comment>title of a dialog</comment>
        <translation>Open Citations</translation>
    </message>
    <message>
        <source>Save Citations</source>
        <comment>title of a dialog</comment>
        <translation>Save Citations</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <comment>alert</comment>
        <translation>Do you want to save the changes?</translation>
    </message>
    <message>
        <source>They are lost if you don&apos;t.</source>
        <comment>alert</comment>
        <translation>They are lost if you don&apos;t.</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>alert button</comment>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>alert button</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <comment>alert button</comment>
        <translation>Don&apos;t Save</translation>
    </message>
    <message>
        <source>Go to any entry</source>
        <comment>placeholder of the palette</comment>
        <translation>Go to any entry</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <comment>name of a list</comment>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Number, title or spec URL</source>
        <comment>placeholder of the lookup field</comment>
        <translation>Number, title or spec URL</translation>
    </message>
    <message>
        <source>Look up</source>
        <comment>name of the lookup field</comment>
        <translation>Look up</translation>
    </message>
    <message>
        <source>Drop to import</source>
        <comment>drop target</comment>
        <translation>Drop to import</translation>
    </message>
    <message>
        <source>Recent places</source>
        <comment>heading of a list</comment>
        <translation>Recent places</translation>
    </message>
    <message>
        <source>Open &amp;Maps…</source>
        <comment>menu item</comment>
        <translation>Open &amp;Maps…</translation>
    </message>
    <message>
        <source>&amp;Import PDF…</source>
        <comment>menu item</comment>
        <translation>&amp;Import PDF…</translation>
    </message>
    <message>
        <source>&amp;Specifications…</source>
        <comment>menu item</comment>
        <translation>&amp;Specifications…</translation>
    </message>
    <message>
        <source>&amp;New Citations</source>
        <comment>menu item</comment>
        <translation>&amp;New Citations</translation>
    </message>
    <message>
        <source>Open &amp;Citations…</source>
        <comment>menu item</comment>
        <translation>Open &amp;Citations…</translation>
    </message>
    <message>
        <source>&amp;Audit References…</source>
        <comment>menu item</comment>
        <translation>&amp;Audit References…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu item</comment>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <comment>menu</comment>
        <translation>&amp;Go</translation>
    </message>
    <message>
        <source>&amp;Look Up</source>
        <comment>menu item</comment>
        <translation>&amp;Look Up</translation>
    </message>
    <message>
        <source>Go to &amp;Entry…</source>
        <comment>menu item</comment>
        <translation>Go to &amp;Entry…</translation>
    </message>
    <message>
        <source>&amp;Clear Recent Places</source>
        <comment>menu item</comment>
        <translation>&amp;Clear Recent Places</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Look-up Pane</source>
        <comment>menu item</comment>
        <translation>&amp;Look-up Pane</translation>
    </message>
    <message>
        <source>The maps could not all be read.</source>
        <comment>alert</comment>
        <translation>The maps could not all be read.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <comment>alert</comment>
        <translation>The file could not be opened.</translation>
    </message>
    <message>
        <source>Open Maps</source>
        <comment>title of a dialog</comment>
        <translation>Open Maps</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <comment>title of a dialog</comment>
        <translation>Import PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <comment>filter of a dialog</comment>
        <translation>PDF files (*.pdf)</translation>
    </message>
    <message>
        <source>Audit References</source>
        <comment>title of a dialog</comment>
        <translation>Audit References</translation>
    </message>
    <message>
        <source>There is nothing to audit.</source>
        <comment>alert</comment>
        <translation>There is nothing to audit.</translation>
    </message>
    <message>
        <source>None of the references leads into a specification whose PDF is imported.</source>
        <comment>alert</comment>
        <translation>None of the references leads into a specification whose PDF is imported.</translation>
    </message>
    <message>
        <source>The references could not be read.</source>
        <comment>alert</comment>
        <translation>The references could not be read.</translation>
    </message>
    <message>
        <source>No entry for “%1”.

Type a number such as 4.2, a figure such as Fig. 3-7, or words of a title.</source>
        <comment>answer of a look-up</comment>
        <translation>No entry for “%1”.

Type a number such as 4.2, a figure such as Fig. 3-7, or words of a title.</translation>
    </message>
    <message>
        <source>The entry could not be looked up.</source>
        <comment>alert</comment>
        <translation>The entry could not be looked up.</translation>
    </message>
    <message>
        <source>Look up a number, a title or a spec URL above.
Ctrl+K goes to any entry.</source>
        <comment>empty state</comment>
        <translation>Look up a number, a title or a spec URL above.
Ctrl+K goes to any entry.</translation>
    </message>
    <message>
        <source>No maps are open.

Choose a directory of spec maps with File ▸ Open Maps.</source>
        <comment>empty state</comment>
        <translation>No maps are open.

Choose a directory of spec maps with File ▸ Open Maps.</translation>
    </message>
    <message>
        <source>Drop the PDF of a specification here to import it.</source>
        <comment>empty state</comment>
        <translation>Drop the PDF of a specification here to import it.</translation>
    </message>
    <message>
        <source>Look up an entry to open its document.</source>
        <comment>empty state</comment>
        <translation>Look up an entry to open its document.</translation>
    </message>
    <message>
        <source>Cited In</source>
        <comment>column of an audit</comment>
        <translation>Cited In</translation>
    </message>
    <message>
        <source>Web page</source>
        <comment>audit format</comment>
        <translation>Web page</translation>
    </message>
    <message>
        <source>Rich text</source>
        <comment>audit format</comment>
        <translation>Rich text</translation>
    </message>
    <message>
        <source>Table</source>
        <comment>audit format</comment>
        <translation>Table</translation>
    </message>
    <message>
        <source>JSON</source>
        <comment>audit format</comment>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JUnit test results</source>
        <comment>audit format</comment>
        <translation>JUnit test results</translation>
    </message>
    <message>
        <source>Export Audit</source>
        <comment>audit export title</comment>
        <translation>Export Audit</translation>
    </message>
    <message>
        <source>Writing the audit…</source>
        <comment>audit export sheet</comment>
        <translation>Writing the audit…</translation>
    </message>
    <message>
        <source>The audit could not be written.</source>
        <comment>audit export error</comment>
        <translation>The audit could not be written.</translation>
    </message>
    <message>
        <source>“%1” leads to no entry of this specification.</source>
        <comment>spec audit message</comment>
        <translation>“%1” leads to no entry of this specification.</translation>
    </message>
    <message>
        <source>%1 matches</source>
        <comment>spec audit search</comment>
        <translation>%1 matches</translation>
    </message>
    <message>
        <source>No matches</source>
        <comment>spec audit search</comment>
        <translation>No matches</translation>
    </message>
    <message>
        <source>Column %1</source>
        <comment>spec audit menu item</comment>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>Sort By</source>
        <comment>spec audit menu item</comment>
        <translation>Sort By</translation>
    </message>
    <message>
        <source>Original Order</source>
        <comment>spec audit menu item</comment>
        <translation>Original Order</translation>
    </message>
    <message>
        <source>%1 entries: %2 referenced — %3 complete — %4 incomplete</source>
        <comment>spec audit summary</comment>
        <translation>%1 entries: %2 referenced — %3 complete — %4 incomplete</translation>
    </message>
    <message>
        <source>Open Entry</source>
        <comment>spec audit menu item</comment>
        <translation>Open Entry</translation>
    </message>
    <message>
        <source>Copy Cell</source>
        <comment>spec audit menu item</comment>
        <translation>Copy Cell</translation>
    </message>
    <message>
        <source>Export…</source>
        <comment>spec audit menu item</comment>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>spec audit search field</comment>
        <translation>Search</translation>
    </message>
    <message>
        <source>Spec References</source>
        <comment>spec audit window title</comment>
        <translation>Spec References</translation>
    </message>
    <message>
        <source>Loading spec references…</source>
        <comment>spec audit progress message</comment>
        <translation>Loading spec references…</translation>
    </message>
    <message>
        <source>The audit failed.</source>
        <comment>spec audit error</comment>
        <translation>The audit failed.</translation>
    </message>
    <message>
        <source>There are no references to audit yet. Refer to the specification in your work, and then open this table again.</source>
        <comment>spec audit empty table</comment>
        <translation>There are no references to audit yet. Refer to the specification in your work, and then open this table again.</translation>
    </message>
    <message>
        <source>No reference holds all of these words. Search for fewer words, or press Escape to see all references.</source>
        <comment>spec audit empty table</comment>
        <translation>No reference holds all of these words. Search for fewer words, or press Escape to see all references.</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <comment>spec audit menu item</comment>
        <translation>Copy Row</translation>
    </message>
    <message>
        <source>Copy Rows</source>
        <comment>spec audit menu item</comment>
        <translation>Copy Rows</translation>
    </message>
    <message>
        <source>Specification:</source>
        <comment>entry browser label</comment>
        <translation>Specification:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>entry browser button</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>entry browser button</comment>
        <translation>Select</translation>
    </message>
    <message>
        <source>Edit…</source>
        <comment>token field menu item</comment>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>token field menu item</comment>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>token field menu item</comment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select an Entry</source>
        <comment>entry browser title</comment>
        <translation>Select an Entry</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>Zoom level</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Document commands</source>
        <comment>Accessible name of the tool bar</comment>
        <translation>Document commands</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>Tool tip: a command and its shortcut</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Forward</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Zoom Out</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Zoom In</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Fit Width</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Fit Page</translation>
    </message>
    <message>
        <source>Zoom Level</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Zoom Level</translation>
    </message>
    <message>
        <source>Find</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Find</translation>
    </message>
    <message>
        <source>Inverted Pages</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Inverted Pages</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>Tab of the detail view</comment>
        <translation>Outline</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Tab of the detail view</comment>
        <translation>Search</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <comment>Accessible name of the tabs of the detail view</comment>
        <translation>Sidebar</translation>
    </message>
    <message>
        <source>Page number</source>
        <comment>Field of the detail view&apos;s tool bar</comment>
        <translation>Page number</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>Behind the page number: the number of pages</comment>
        <translation>of %1</translation>
    </message>
    <message>
        <source>Go to page (%1)</source>
        <comment>Tool tip with a shortcut</comment>
        <translation>Go to page (%1)</translation>
    </message>
    <message>
        <source>Go to Page</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Go to Page</translation>
    </message>
    <message>
        <source>The file of this document was moved or deleted. Pages that have not been read yet may be missing.</source>
        <comment>Notice of the detail view</comment>
        <translation>The file of this document was moved or deleted. Pages that have not been read yet may be missing.</translation>
    </message>
    <message>
        <source>The file of this document was changed by another program. Pages may be wrong or missing until it is imported again.</source>
        <comment>Notice of the detail view</comment>
        <translation>The file of this document was changed by another program. Pages may be wrong or missing until it is imported again.</translation>
    </message>
    <message>
        <source>Links of this kind are not opened: %1</source>
        <comment>Notice of the detail view</comment>
        <translation>Links of this kind are not opened: %1</translation>
    </message>
    <message>
        <source>“%1” has no place in this document.</source>
        <comment>Notice of the detail view</comment>
        <translation>“%1” has no place in this document.</translation>
    </message>
    <message>
        <source>Highlighting spec coverage…</source>
        <comment>spec detail view progress message</comment>
        <translation>Highlighting spec coverage…</translation>
    </message>
    <message>
        <source>No references were given to highlight in a document.</source>
        <comment>Sheet of the detail view</comment>
        <translation>No references were given to highlight in a document.</translation>
    </message>
    <message>
        <source>Specification</source>
        <comment>default PDF detail view title</comment>
        <translation>Specification</translation>
    </message>
    <message>
        <source>The document of “%1” is not there. Import its PDF file to read it here.</source>
        <comment>In a detail view without a document</comment>
        <translation>The document of “%1” is not there. Import its PDF file to read it here.</translation>
    </message>
    <message>
        <source>There is no specification to show.</source>
        <comment>In a detail view without one</comment>
        <translation>There is no specification to show.</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button of a notice</comment>
        <translation>Close</translation>
    </message>
    <message>
        <source>Notice</source>
        <comment>Accessible name of the line above a document</comment>
        <translation>Notice</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <comment>accessible name of a list</comment>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Undo</source>
        <comment>menu item</comment>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <comment>menu item</comment>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>menu item</comment>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>menu item</comment>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu item</comment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>reference</source>
        <comment>where a search matched</comment>
        <translation>reference</translation>
    </message>
    <message>
        <source>Selected entry: %@</source>
        <comment>entry browser indicator text</comment>
        <translation>Selected entry: %@</translation>
    </message>
    <message>
        <source>No selected entry</source>
        <comment>entry browser indicator text</comment>
        <translation>No selected entry</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Copy Entry</source>
        <comment>menu item</comment>
        <translation>&amp;Copy Entry</translation>
    </message>
    <message>
        <source>%@ cannot be read.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ cannot be read.</translation>
    </message>
    <message>
        <source>%@ is not a PDF.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ is not a PDF.</translation>
    </message>
    <message>
        <source>%@ is damaged.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ is damaged.</translation>
    </message>
    <message>
        <source>%@ is protected by a password.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ is protected by a password.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu item</comment>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu item</comment>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <comment>menu item</comment>
        <translation>C&amp;opy</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <comment>menu item</comment>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>&amp;Next Part</source>
        <comment>menu item</comment>
        <translation>&amp;Next Part</translation>
    </message>
    <message>
        <source>&amp;Previous Part</source>
        <comment>menu item</comment>
        <translation>&amp;Previous Part</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <comment>menu item</comment>
        <translation>&amp;Full Screen</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <comment>menu</comment>
        <translation>&amp;Document</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <comment>menu</comment>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <comment>menu item</comment>
        <translation>&amp;Shortcuts</translation>
    </message>
    <message>
        <source>&amp;About Tavrin</source>
        <comment>menu item</comment>
        <translation>&amp;About Tavrin</translation>
    </message>
    <message>
        <source>Reads specifications that exist only as PDFs.</source>
        <comment>about</comment>
        <translation>Reads specifications that exist only as PDFs.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <comment>title of a window</comment>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Command</source>
        <comment>column of a list</comment>
        <translation>Command</translation>
    </message>
    <message>
        <source>Keys</source>
        <comment>column of a list</comment>
        <translation>Keys</translation>
    </message>
</context>
</TS>
