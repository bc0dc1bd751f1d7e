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
</context>
</TS>
