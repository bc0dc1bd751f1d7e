<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Tavrin</name>
    <message>
        <source>%1: the words of its first page are not those of the map&apos;s verifier</source>
        <comment>a PDF</comment>
        <translation>%1: Die Wörter der ersten Seite sind nicht die, an denen die Map das Dokument erkennt</translation>
    </message>
    <message>
        <source>no place</source>
        <comment>fault of an entry</comment>
        <translation>keine Stelle</translation>
    </message>
    <message>
        <source>%1 entries, %2 with a place, %3 with their title printed there</source>
        <comment>a map held against its PDF</comment>
        <translation>%1 Einträge, %2 mit einer Stelle, %3 mit ihrem dort gedruckten Titel</translation>
    </message>
    <message>
        <source>%1: valid, %2 entries</source>
        <comment>a map</comment>
        <translation>%1: gültig, %2 Einträge</translation>
    </message>
    <message>
        <source>%1: %2, %3 entries</source>
        <comment>a map that was written</comment>
        <translation>%1: %2, %3 Einträge</translation>
    </message>
    <message>
        <source>, lines %1 to %2</source>
        <comment>behind a number</comment>
        <translation>, Zeilen %1 bis %2</translation>
    </message>
    <message>
        <source>no place in the PDF</source>
        <comment>place of an entry</comment>
        <translation>keine Stelle im PDF</translation>
    </message>
    <message>
        <source>%1 (printed %2)</source>
        <comment>page number</comment>
        <translation>%1 (gedruckt %2)</translation>
    </message>
    <message>
        <source>page %1 at %2, %3</source>
        <comment>place of an entry</comment>
        <translation>Seite %1 bei %2, %3</translation>
    </message>
    <message>
        <source>%1, revision %2, %3 entries, %4</source>
        <comment>a specification</comment>
        <translation>%1, Revision %2, %3 Einträge, %4</translation>
    </message>
    <message>
        <source>PDF of %1 pages bound</source>
        <comment>a specification</comment>
        <translation>PDF mit %1 Seiten zugeordnet</translation>
    </message>
    <message>
        <source>no PDF bound</source>
        <comment>a specification</comment>
        <translation>kein PDF zugeordnet</translation>
    </message>
    <message>
        <source>%1: unknown</source>
        <comment>a reference</comment>
        <translation>%1: unbekannt</translation>
    </message>
    <message>
        <source>label &quot;%1&quot; stands twice; only the first entry counts</source>
        <comment>fault of a map</comment>
        <translation>Kennung „%1“ kommt zweimal vor; nur der erste Eintrag zählt</translation>
    </message>
    <message>
        <source>entry &quot;%1&quot;: no entry has the related label &quot;%2&quot;</source>
        <comment>fault of a map</comment>
        <translation>Eintrag „%1“: Kein Eintrag hat die Kennung „%2“, auf die er verweist</translation>
    </message>
    <message>
        <source>entry &quot;%1&quot;: its spec URL %2 does not lead back to it</source>
        <comment>fault of a map</comment>
        <translation>Eintrag „%1“: Seine Spec-URL %2 führt nicht zu ihm zurück</translation>
    </message>
    <message>
        <source>title</source>
        <comment>where a search matched</comment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>number</source>
        <comment>where a search matched</comment>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>keyword %1</source>
        <comment>where a search matched</comment>
        <translation>Stichwort %1</translation>
    </message>
    <message>
        <source>with punctuation left out</source>
        <comment>how a search matched</comment>
        <translation>ohne Satzzeichen</translation>
    </message>
    <message>
        <source>nothing found</source>
        <comment>result of a search</comment>
        <translation>nichts gefunden</translation>
    </message>
    <message>
        <source>1 hit</source>
        <comment>result of a search</comment>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <comment>result of a search</comment>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>%1 of %2 hits; --limit 0 shows all</source>
        <comment>result of a search</comment>
        <translation>%1 von %2 Treffern; --limit 0 zeigt alle</translation>
    </message>
    <message>
        <source>matched: %1</source>
        <comment>reason of a hit</comment>
        <translation>Treffer: %1</translation>
    </message>
    <message>
        <source>shares: %1</source>
        <comment>words of a text and an entry</comment>
        <translation>gemeinsam: %1</translation>
    </message>
    <message>
        <source>title not on the page</source>
        <comment>fault of an entry</comment>
        <translation>Titel nicht auf der Seite</translation>
    </message>
    <message>
        <source>title %1 points below the place</source>
        <comment>fault of an entry</comment>
        <translation>Titel %1 Punkt unter der Stelle</translation>
    </message>
    <message>
        <source>title %1 points above the place</source>
        <comment>fault of an entry</comment>
        <translation>Titel %1 Punkt über der Stelle</translation>
    </message>
    <message>
        <source>%@ does not match any supported specifications.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ passt zu keiner unterstützten Spezifikation.</translation>
    </message>
    <message>
        <source>Try another file.</source>
        <comment>aux file assignment error recovery suggestion</comment>
        <translation>Versuchen Sie es mit einer anderen Datei.</translation>
    </message>
    <message>
        <source>Label</source>
        <comment>spec entry field</comment>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Related</source>
        <comment>spec entry field</comment>
        <translation>Siehe auch</translation>
    </message>
    <message>
        <source>Section</source>
        <comment>spec entry type</comment>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Chapter</source>
        <comment>spec entry type</comment>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Figure</source>
        <comment>spec entry type</comment>
        <translation>Abbildung</translation>
    </message>
    <message>
        <source>Table</source>
        <comment>spec entry type</comment>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>no entry there</source>
        <comment>a point of a page</comment>
        <translation>dort ist kein Eintrag</translation>
    </message>
    <message>
        <source>%1 entries: %2 linked, %3 without a place; %4 keywords, %5 related entries; %6 s</source>
        <comment>a map that was enhanced</comment>
        <translation>%1 Einträge: %2 mit Link, %3 ohne Stelle; %4 Stichwörter, %5 verwandte Einträge; %6 s</translation>
    </message>
    <message>
        <source>picture of %1 × %2 points</source>
        <comment>a figure or table</comment>
        <translation>Bild von %1 × %2 Punkt</translation>
    </message>
    <message>
        <source>Source</source>
        <comment>spec entry field</comment>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Summary</source>
        <comment>spec entry field</comment>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>spec entry field</comment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>View in specification</source>
        <comment>spec entry value</comment>
        <translation>In der Spezifikation anzeigen</translation>
    </message>
    <message>
        <source>More</source>
        <comment>spec entry field</comment>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>nothing imported</source>
        <comment>list of files</comment>
        <translation>nichts importiert</translation>
    </message>
    <message>
        <source>%1: can&apos;t be deleted</source>
        <comment>a file</comment>
        <translation>%1: lässt sich nicht löschen</translation>
    </message>
    <message>
        <source>%1: was not imported</source>
        <comment>a file</comment>
        <translation>%1: wurde nicht importiert</translation>
    </message>
    <message>
        <source>%1: deleted</source>
        <comment>a file</comment>
        <translation>%1: gelöscht</translation>
    </message>
    <message>
        <source>%1: not imported</source>
        <comment>a file</comment>
        <translation>%1: nicht importiert</translation>
    </message>
    <message>
        <source>%1: no map that still wants a PDF recognises it</source>
        <comment>a file</comment>
        <translation>%1: keine Map, der noch ein PDF fehlt, erkennt es</translation>
    </message>
    <message>
        <source>Location</source>
        <comment>spec entry destination</comment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>No summary available</source>
        <comment>spec audit message</comment>
        <translation>Keine Zusammenfassung vorhanden</translation>
    </message>
    <message>
        <source>No image available</source>
        <comment>spec audit message</comment>
        <translation>Kein Bild vorhanden</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>spec entry field</comment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Index</source>
        <comment>spec entry field</comment>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Outside of chapters</source>
        <comment>spec audit message</comment>
        <translation>Außerhalb der Kapitel</translation>
    </message>
    <message>
        <source>Required %1: no entry matches</source>
        <comment>spec audit message</comment>
        <translation>Verlangt %1: kein Eintrag passt</translation>
    </message>
    <message>
        <source>Required %1: %2 of %3 entries cited</source>
        <comment>spec audit message</comment>
        <translation>Verlangt %1: %2 von %3 Einträgen zitiert</translation>
    </message>
    <message>
        <source>%1, revision %2</source>
        <comment>spec audit message</comment>
        <translation>%1, Revision %2</translation>
    </message>
    <message>
        <source>Entries cited: %1, references: %2, unknown: %3</source>
        <comment>spec audit message</comment>
        <translation>Zitierte Einträge: %1, Verweise: %2, unbekannt: %3</translation>
    </message>
    <message>
        <source>Coverage: %1</source>
        <comment>spec audit message</comment>
        <translation>Abdeckung: %1</translation>
    </message>
    <message>
        <source>%1 of %2 covered, %3</source>
        <comment>spec audit message</comment>
        <translation>%1 von %2 abgedeckt, %3</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>a share</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Required coverage: %1 %, reached: %2</source>
        <comment>spec audit message</comment>
        <translation>Verlangte Abdeckung: %1 %, erreicht: %2</translation>
    </message>
    <message>
        <source>%1 is unknown</source>
        <comment>a reference</comment>
        <translation>%1 ist unbekannt</translation>
    </message>
    <message>
        <source>nearest: %1</source>
        <comment>spec audit message</comment>
        <translation>am nächsten: %1</translation>
    </message>
    <message>
        <source>This specification does not allow its text to be shown elsewhere.</source>
        <comment>spec audit message</comment>
        <translation>Diese Spezifikation erlaubt nicht, ihren Text anderswo zu zeigen.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>code of the language of this translation</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>Audit of %1</source>
        <comment>title of a page</comment>
        <translation>Prüfung von %1</translation>
    </message>
    <message>
        <source>Audit</source>
        <comment>title of a page</comment>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Chapters</source>
        <comment>heading of an audit</comment>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Requirements</source>
        <comment>heading of an audit</comment>
        <translation>Anforderungen</translation>
    </message>
    <message>
        <source>Unknown references</source>
        <comment>heading of an audit</comment>
        <translation>Unbekannte Verweise</translation>
    </message>
    <message>
        <source>Cited by</source>
        <comment>spec entry field</comment>
        <translation>Zitiert von</translation>
    </message>
    <message>
        <source>Page</source>
        <comment>spec entry field</comment>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Reference</source>
        <comment>spec entry field</comment>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>Show all</source>
        <comment>a folded text</comment>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>n/a</source>
        <comment>spec audit message</comment>
        <translation>entfällt</translation>
    </message>
    <message>
        <source>&lt;no value&gt;</source>
        <comment>spec audit message</comment>
        <translation>&lt;kein Wert&gt;</translation>
    </message>
</context>
</TS>
