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
    <message>
        <source>Find in document</source>
        <comment>Empty find field of a PDF view</comment>
        <translation>Im Dokument suchen</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <comment>Button of the find bar</comment>
        <translation>Vorheriger Treffer</translation>
    </message>
    <message>
        <source>Next hit</source>
        <comment>Button of the find bar</comment>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button of the find bar</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No hits</source>
        <comment>Count of the find bar</comment>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>No document is open.</source>
        <comment>In an empty PDF view</comment>
        <translation>Es ist kein Dokument geöffnet.</translation>
    </message>
    <message>
        <source>Document</source>
        <comment>Accessible name of a PDF view</comment>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Page %1</source>
        <comment>Accessible description of a PDF view</comment>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>Menu of a PDF view</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <comment>Menu of a PDF view</comment>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>Menu of a PDF view</comment>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>Menu of a PDF view</comment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <comment>Menu of a PDF view</comment>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Find…</source>
        <comment>Menu of a PDF view</comment>
        <translation>Suchen …</translation>
    </message>
    <message>
        <source>Inverted Pages</source>
        <comment>Menu of a PDF view</comment>
        <translation>Seiten invertieren</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>Page number and number of pages</comment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <comment>Printed page number, page and number of pages</comment>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>This page can&apos;t be shown.</source>
        <comment>In place of a broken page of a PDF</comment>
        <translation>Diese Seite kann nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>Copy Link</source>
        <comment>menu item</comment>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <comment>menu item</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <comment>menu item</comment>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>sidebar</comment>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Filter the outline</source>
        <comment>empty field of a sidebar</comment>
        <translation>Gliederung filtern</translation>
    </message>
    <message>
        <source>No title of the outline holds all of these words. Check their spelling, or use fewer words.</source>
        <comment>outline sidebar</comment>
        <translation>Kein Titel der Gliederung enthält alle diese Wörter. Prüfen Sie die Schreibweise, oder verwenden Sie weniger Wörter.</translation>
    </message>
    <message>
        <source>Title, number or keyword</source>
        <comment>empty search field of a sidebar</comment>
        <translation>Titel, Nummer oder Stichwort</translation>
    </message>
    <message>
        <source>Search entries</source>
        <comment>sidebar</comment>
        <translation>Einträge suchen</translation>
    </message>
    <message>
        <source>Entries found</source>
        <comment>sidebar</comment>
        <translation>Gefundene Einträge</translation>
    </message>
    <message>
        <source>No entry has all of these words in its title, number or keywords. Check their spelling, or use fewer words.</source>
        <comment>search sidebar</comment>
        <translation>Kein Eintrag enthält alle diese Wörter in Titel, Nummer oder Stichwörtern. Prüfen Sie die Schreibweise, oder verwenden Sie weniger Wörter.</translation>
    </message>
    <message>
        <source>&lt;cannot display this type&gt;</source>
        <comment>spec entry value</comment>
        <translation>&lt;Dieser Typ kann nicht angezeigt werden&gt;</translation>
    </message>
    <message>
        <source>No imported specification has this reference. Check how it is written, or import another document.</source>
        <comment>summary of no entry</comment>
        <translation>Keine importierte Spezifikation enthält diese Referenz. Prüfen Sie die Schreibweise, oder importieren Sie ein weiteres Dokument.</translation>
    </message>
    <message>
        <source>Summary of the entry</source>
        <comment>accessible name</comment>
        <translation>Zusammenfassung des Eintrags</translation>
    </message>
    <message>
        <source>Loading…</source>
        <comment>spec entry value</comment>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>Unrecognized</source>
        <comment>spec aux file match status</comment>
        <translation>Nicht erkannt</translation>
    </message>
    <message>
        <source>Not Loaded</source>
        <comment>spec aux file match status</comment>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>Specification</source>
        <comment>column of the imported files</comment>
        <translation>Spezifikation</translation>
    </message>
    <message>
        <source>Status</source>
        <comment>column of the imported files</comment>
        <translation>Status</translation>
    </message>
    <message>
        <source>Import Errors</source>
        <comment>aux file assignment error title</comment>
        <translation>Fehler beim Importieren</translation>
    </message>
    <message>
        <source>Import a supported specification to look up reference topics inline:</source>
        <comment>auxiliary file browser instruction</comment>
        <translation>Importieren Sie eine unterstützte Spezifikation, um Referenzen direkt nachzuschlagen:</translation>
    </message>
    <message>
        <source>Specifications</source>
        <comment>auxiliary file browser title</comment>
        <translation>Spezifikationen</translation>
    </message>
    <message>
        <source>Import and remove</source>
        <comment>accessible name of the buttons below imported files</comment>
        <translation>Importieren und entfernen</translation>
    </message>
    <message>
        <source>Import a file</source>
        <comment>button below imported files</comment>
        <translation>Datei importieren</translation>
    </message>
    <message>
        <source>Remove the files of the selected rows</source>
        <comment>button below imported files</comment>
        <translation>Dateien der ausgewählten Zeilen entfernen</translation>
    </message>
    <message>
        <source>View</source>
        <comment>button of an imported file</comment>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>View %1</source>
        <comment>accessible name of the button of an imported file</comment>
        <translation>%1 ansehen</translation>
    </message>
    <message>
        <source>Drop files here, or press + to choose one.</source>
        <comment>hint in the table of imported files</comment>
        <translation>Legen Sie Dateien hier ab, oder wählen Sie mit + eine aus.</translation>
    </message>
    <message>
        <source>Choose a specification file to import.</source>
        <comment>auxiliary file browser open panel</comment>
        <translation>Wählen Sie eine Spezifikationsdatei zum Importieren.</translation>
    </message>
    <message>
        <source>Specifications</source>
        <comment>file type in a panel</comment>
        <translation>Spezifikationen</translation>
    </message>
    <message>
        <source>Importing…</source>
        <comment>aux file import progress title</comment>
        <translation>Wird importiert …</translation>
    </message>
    <message>
        <source>latest</source>
        <comment>status indicating that this version of the spec is latest</comment>
        <translation>aktuell</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>alert button</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>You have not imported a spec for this reference yet. Would you like to choose a file now?</source>
        <comment>no specs error prompt</comment>
        <translation>Sie haben noch keine Spezifikation für diese Referenz importiert. Möchten Sie jetzt eine Datei auswählen?</translation>
    </message>
    <message>
        <source>You have not imported a spec for this reference.</source>
        <comment>no specs error message</comment>
        <translation>Sie haben keine Spezifikation für diese Referenz importiert.</translation>
    </message>
    <message>
        <source>You have not imported any specs yet. Would you like to choose a file now?</source>
        <comment>no specs error prompt</comment>
        <translation>Sie haben noch keine Spezifikationen importiert. Möchten Sie jetzt eine Datei auswählen?</translation>
    </message>
    <message>
        <source>You have not imported any specs yet.</source>
        <comment>no specs error message</comment>
        <translation>Sie haben noch keine Spezifikationen importiert.</translation>
    </message>
    <message>
        <source>Import Specs</source>
        <comment>no specs error button</comment>
        <translation>Spezifikationen importieren</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <comment>fault of a file</comment>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <comment>fault of a file</comment>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>This is no list of citations.</source>
        <comment>fault of a file</comment>
        <translation>Das ist keine Liste von Zitaten.</translation>
    </message>
    <message>
        <source>New passage</source>
        <comment>a passage without text</comment>
        <translation>Neue Textstelle</translation>
    </message>
    <message>
        <source>Citations (*.json)</source>
        <comment>filter of a dialog</comment>
        <translation>Zitate (*.json)</translation>
    </message>
    <message>
        <source>Passages</source>
        <comment>name of a list</comment>
        <translation>Textstellen</translation>
    </message>
    <message>
        <source>Add a passage</source>
        <comment>button</comment>
        <translation>Textstelle hinzufügen</translation>
    </message>
    <message>
        <source>Remove the passage</source>
        <comment>button</comment>
        <translation>Textstelle entfernen</translation>
    </message>
    <message>
        <source>&amp;Passage</source>
        <comment>label of a field</comment>
        <translation>&amp;Textstelle</translation>
    </message>
    <message>
        <source>Passage</source>
        <comment>name of a field</comment>
        <translation>Textstelle</translation>
    </message>
    <message>
        <source>&amp;Cites</source>
        <comment>label of a field</comment>
        <translation>&amp;Zitiert</translation>
    </message>
    <message>
        <source>Cited entries</source>
        <comment>name of a field</comment>
        <translation>Zitierte Einträge</translation>
    </message>
    <message>
        <source>Type a number or words of a title</source>
        <comment>placeholder of a field</comment>
        <translation>Nummer oder Wörter eines Titels eingeben</translation>
    </message>
    <message>
        <source>Choose in Document…</source>
        <comment>button</comment>
        <translation>Im Dokument auswählen …</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <comment>menu</comment>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <comment>menu item</comment>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <comment>menu item</comment>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <comment>menu item</comment>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <comment>menu item</comment>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;References</source>
        <comment>menu</comment>
        <translation>&amp;Verweise</translation>
    </message>
    <message>
        <source>&amp;Audit…</source>
        <comment>menu item</comment>
        <translation>&amp;Prüfen …</translation>
    </message>
    <message>
        <source>Show &amp;Coverage in Document</source>
        <comment>menu item</comment>
        <translation>&amp;Abdeckung im Dokument zeigen</translation>
    </message>
    <message>
        <source>The citations could not be opened.</source>
        <comment>alert</comment>
        <translation>Die Zitate konnten nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The citations could not be saved.</source>
        <comment>alert</comment>
        <translation>Die Zitate konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>New Citations</source>
        <comment>title of a window</comment>
        <translation>Neue Zitate</translation>
    </message>
    <message>
        <source>Open Citations</source>
        <comment>title of a dialog</comment>
        <translation>Zitate öffnen</translation>
    </message>
    <message>
        <source>Save Citations</source>
        <comment>title of a dialog</comment>
        <translation>Zitate speichern</translation>
    </message>
    <message>
        <source>Do you want to save the changes?</source>
        <comment>alert</comment>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
    <message>
        <source>They are lost if you don&apos;t.</source>
        <comment>alert</comment>
        <translation>Andernfalls gehen sie verloren.</translation>
    </message>
    <message>
        <source>Save</source>
        <comment>alert button</comment>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>alert button</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <comment>alert button</comment>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Go to any entry</source>
        <comment>placeholder of the palette</comment>
        <translation>Zu einem beliebigen Eintrag gehen</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <comment>name of a list</comment>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Number, title or spec URL</source>
        <comment>placeholder of the lookup field</comment>
        <translation>Nummer, Titel oder Spec-URL</translation>
    </message>
    <message>
        <source>Look up</source>
        <comment>name of the lookup field</comment>
        <translation>Nachschlagen</translation>
    </message>
    <message>
        <source>Drop to import</source>
        <comment>drop target</comment>
        <translation>Zum Importieren ablegen</translation>
    </message>
    <message>
        <source>Recent places</source>
        <comment>heading of a list</comment>
        <translation>Zuletzt angesehen</translation>
    </message>
    <message>
        <source>Open &amp;Maps…</source>
        <comment>menu item</comment>
        <translation>&amp;Karten öffnen …</translation>
    </message>
    <message>
        <source>&amp;Import PDF…</source>
        <comment>menu item</comment>
        <translation>PDF &amp;importieren …</translation>
    </message>
    <message>
        <source>&amp;Specifications…</source>
        <comment>menu item</comment>
        <translation>&amp;Spezifikationen …</translation>
    </message>
    <message>
        <source>&amp;New Citations</source>
        <comment>menu item</comment>
        <translation>&amp;Neue Zitate</translation>
    </message>
    <message>
        <source>Open &amp;Citations…</source>
        <comment>menu item</comment>
        <translation>&amp;Zitate öffnen …</translation>
    </message>
    <message>
        <source>&amp;Audit References…</source>
        <comment>menu item</comment>
        <translation>&amp;Verweise prüfen …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <comment>menu item</comment>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <comment>menu</comment>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Look Up</source>
        <comment>menu item</comment>
        <translation>&amp;Nachschlagen</translation>
    </message>
    <message>
        <source>Go to &amp;Entry…</source>
        <comment>menu item</comment>
        <translation>Zu &amp;Eintrag gehen …</translation>
    </message>
    <message>
        <source>&amp;Clear Recent Places</source>
        <comment>menu item</comment>
        <translation>Zuletzt angesehene &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <comment>menu</comment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Look-up Pane</source>
        <comment>menu item</comment>
        <translation>&amp;Nachschlagebereich</translation>
    </message>
    <message>
        <source>The maps could not all be read.</source>
        <comment>alert</comment>
        <translation>Nicht alle Karten konnten gelesen werden.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <comment>alert</comment>
        <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Open Maps</source>
        <comment>title of a dialog</comment>
        <translation>Karten öffnen</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <comment>title of a dialog</comment>
        <translation>PDF importieren</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <comment>filter of a dialog</comment>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Audit References</source>
        <comment>title of a dialog</comment>
        <translation>Verweise prüfen</translation>
    </message>
    <message>
        <source>There is nothing to audit.</source>
        <comment>alert</comment>
        <translation>Es gibt nichts zu prüfen.</translation>
    </message>
    <message>
        <source>None of the references leads into a specification whose PDF is imported.</source>
        <comment>alert</comment>
        <translation>Keiner der Verweise führt in eine Spezifikation, deren PDF importiert ist.</translation>
    </message>
    <message>
        <source>The references could not be read.</source>
        <comment>alert</comment>
        <translation>Die Verweise konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No entry for “%1”.

Type a number such as 4.2, a figure such as Fig. 3-7, or words of a title.</source>
        <comment>answer of a look-up</comment>
        <translation>Kein Eintrag für „%1“.

Geben Sie eine Nummer wie 4.2, eine Abbildung wie Fig. 3-7 oder Wörter eines Titels ein.</translation>
    </message>
    <message>
        <source>The entry could not be looked up.</source>
        <comment>alert</comment>
        <translation>Der Eintrag konnte nicht nachgeschlagen werden.</translation>
    </message>
    <message>
        <source>Look up a number, a title or a spec URL above.
Ctrl+K goes to any entry.</source>
        <comment>empty state</comment>
        <translation>Schlagen Sie oben eine Nummer, einen Titel oder eine Spec-URL nach.
Strg+K führt zu jedem Eintrag.</translation>
    </message>
    <message>
        <source>No maps are open.

Choose a directory of spec maps with File ▸ Open Maps.</source>
        <comment>empty state</comment>
        <translation>Es sind keine Karten geöffnet.

Wählen Sie ein Verzeichnis mit Karten unter Datei ▸ Karten öffnen.</translation>
    </message>
    <message>
        <source>Drop the PDF of a specification here to import it.</source>
        <comment>empty state</comment>
        <translation>Legen Sie das PDF einer Spezifikation hier ab, um es zu importieren.</translation>
    </message>
    <message>
        <source>Look up an entry to open its document.</source>
        <comment>empty state</comment>
        <translation>Schlagen Sie einen Eintrag nach, um sein Dokument zu öffnen.</translation>
    </message>
    <message>
        <source>Cited In</source>
        <comment>column of an audit</comment>
        <translation>Zitiert in</translation>
    </message>
    <message>
        <source>Web page</source>
        <comment>audit format</comment>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Rich text</source>
        <comment>audit format</comment>
        <translation>Formatierter Text</translation>
    </message>
    <message>
        <source>Table</source>
        <comment>audit format</comment>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>JSON</source>
        <comment>audit format</comment>
        <translation>JSON</translation>
    </message>
    <message>
        <source>JUnit test results</source>
        <comment>audit format</comment>
        <translation>JUnit-Testergebnisse</translation>
    </message>
    <message>
        <source>Export Audit</source>
        <comment>audit export title</comment>
        <translation>Prüfbericht exportieren</translation>
    </message>
    <message>
        <source>Writing the audit…</source>
        <comment>audit export sheet</comment>
        <translation>Der Prüfbericht wird geschrieben …</translation>
    </message>
    <message>
        <source>The audit could not be written.</source>
        <comment>audit export error</comment>
        <translation>Der Prüfbericht konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>“%1” leads to no entry of this specification.</source>
        <comment>spec audit message</comment>
        <translation>„%1“ führt zu keinem Eintrag dieser Spezifikation.</translation>
    </message>
    <message>
        <source>%1 matches</source>
        <comment>spec audit search</comment>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>No matches</source>
        <comment>spec audit search</comment>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Column %1</source>
        <comment>spec audit menu item</comment>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Sort By</source>
        <comment>spec audit menu item</comment>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Original Order</source>
        <comment>spec audit menu item</comment>
        <translation>Ursprüngliche Reihenfolge</translation>
    </message>
    <message>
        <source>%1 entries: %2 referenced — %3 complete — %4 incomplete</source>
        <comment>spec audit summary</comment>
        <translation>%1 Einträge: %2 referenziert — %3 vollständig — %4 unvollständig</translation>
    </message>
    <message>
        <source>Open Entry</source>
        <comment>spec audit menu item</comment>
        <translation>Eintrag öffnen</translation>
    </message>
    <message>
        <source>Copy Cell</source>
        <comment>spec audit menu item</comment>
        <translation>Zelle kopieren</translation>
    </message>
    <message>
        <source>Export…</source>
        <comment>spec audit menu item</comment>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>spec audit search field</comment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Spec References</source>
        <comment>spec audit window title</comment>
        <translation>Spezifikationsverweise</translation>
    </message>
    <message>
        <source>Loading spec references…</source>
        <comment>spec audit progress message</comment>
        <translation>Spezifikationsverweise werden geladen …</translation>
    </message>
    <message>
        <source>The audit failed.</source>
        <comment>spec audit error</comment>
        <translation>Die Prüfung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>There are no references to audit yet. Refer to the specification in your work, and then open this table again.</source>
        <comment>spec audit empty table</comment>
        <translation>Es gibt noch keine Verweise zu prüfen. Verweisen Sie in Ihrer Arbeit auf die Spezifikation, und öffnen Sie diese Tabelle dann erneut.</translation>
    </message>
    <message>
        <source>No reference holds all of these words. Search for fewer words, or press Escape to see all references.</source>
        <comment>spec audit empty table</comment>
        <translation>Kein Verweis enthält alle diese Wörter. Suchen Sie nach weniger Wörtern, oder drücken Sie Esc, um alle Verweise zu sehen.</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <comment>spec audit menu item</comment>
        <translation>Zeile kopieren</translation>
    </message>
    <message>
        <source>Copy Rows</source>
        <comment>spec audit menu item</comment>
        <translation>Zeilen kopieren</translation>
    </message>
    <message>
        <source>Specification:</source>
        <comment>entry browser label</comment>
        <translation>Spezifikation:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>entry browser button</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>entry browser button</comment>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Edit…</source>
        <comment>token field menu item</comment>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Preview</source>
        <comment>token field menu item</comment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>token field menu item</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select an Entry</source>
        <comment>entry browser title</comment>
        <translation>Eintrag auswählen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <comment>Zoom level</comment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Document commands</source>
        <comment>Accessible name of the tool bar</comment>
        <translation>Befehle des Dokuments</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>Tool tip: a command and its shortcut</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <comment>Tool bar of the detail view</comment>
        <translation>An Breite anpassen</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Zoom Level</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Vergrößerung</translation>
    </message>
    <message>
        <source>Find</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Inverted Pages</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Seiten invertieren</translation>
    </message>
    <message>
        <source>Outline</source>
        <comment>Tab of the detail view</comment>
        <translation>Gliederung</translation>
    </message>
    <message>
        <source>Search</source>
        <comment>Tab of the detail view</comment>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <comment>Accessible name of the tabs of the detail view</comment>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Page number</source>
        <comment>Field of the detail view&apos;s tool bar</comment>
        <translation>Seitenzahl</translation>
    </message>
    <message>
        <source>of %1</source>
        <comment>Behind the page number: the number of pages</comment>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Go to page (%1)</source>
        <comment>Tool tip with a shortcut</comment>
        <translation>Gehe zu Seite (%1)</translation>
    </message>
    <message>
        <source>Go to Page</source>
        <comment>Tool bar of the detail view</comment>
        <translation>Gehe zu Seite</translation>
    </message>
    <message>
        <source>The file of this document was moved or deleted. Pages that have not been read yet may be missing.</source>
        <comment>Notice of the detail view</comment>
        <translation>Die Datei dieses Dokuments wurde verschoben oder gelöscht. Noch nicht gelesene Seiten fehlen möglicherweise.</translation>
    </message>
    <message>
        <source>The file of this document was changed by another program. Pages may be wrong or missing until it is imported again.</source>
        <comment>Notice of the detail view</comment>
        <translation>Die Datei dieses Dokuments wurde von einem anderen Programm geändert. Bis sie erneut importiert wird, können Seiten falsch sein oder fehlen.</translation>
    </message>
    <message>
        <source>Links of this kind are not opened: %1</source>
        <comment>Notice of the detail view</comment>
        <translation>Links dieser Art werden nicht geöffnet: %1</translation>
    </message>
    <message>
        <source>“%1” has no place in this document.</source>
        <comment>Notice of the detail view</comment>
        <translation>„%1“ hat keine Stelle in diesem Dokument.</translation>
    </message>
    <message>
        <source>Highlighting spec coverage…</source>
        <comment>spec detail view progress message</comment>
        <translation>Abdeckung der Spezifikation wird markiert …</translation>
    </message>
    <message>
        <source>No references were given to highlight in a document.</source>
        <comment>Sheet of the detail view</comment>
        <translation>Es wurden keine Verweise angegeben, die in einem Dokument zu markieren wären.</translation>
    </message>
    <message>
        <source>Specification</source>
        <comment>default PDF detail view title</comment>
        <translation>Spezifikation</translation>
    </message>
    <message>
        <source>The document of “%1” is not there. Import its PDF file to read it here.</source>
        <comment>In a detail view without a document</comment>
        <translation>Das Dokument zu „%1“ ist nicht vorhanden. Importieren Sie die PDF-Datei, um es hier zu lesen.</translation>
    </message>
    <message>
        <source>There is no specification to show.</source>
        <comment>In a detail view without one</comment>
        <translation>Es gibt keine Spezifikation, die angezeigt werden könnte.</translation>
    </message>
    <message>
        <source>Close</source>
        <comment>Button of a notice</comment>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Notice</source>
        <comment>Accessible name of the line above a document</comment>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <comment>accessible name of a list</comment>
        <translation>Vorschläge</translation>
    </message>
    <message>
        <source>Undo</source>
        <comment>menu item</comment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <comment>menu item</comment>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cut</source>
        <comment>menu item</comment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <comment>menu item</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>menu item</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>reference</source>
        <comment>where a search matched</comment>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>Selected entry: %@</source>
        <comment>entry browser indicator text</comment>
        <translation>Ausgewählter Eintrag: %@</translation>
    </message>
    <message>
        <source>No selected entry</source>
        <comment>entry browser indicator text</comment>
        <translation>Kein Eintrag ausgewählt</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <comment>menu</comment>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Entry</source>
        <comment>menu item</comment>
        <translation>Eintrag &amp;kopieren</translation>
    </message>
    <message>
        <source>%@ cannot be read.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%@ is not a PDF.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ ist keine PDF-Datei.</translation>
    </message>
    <message>
        <source>%@ is damaged.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ ist beschädigt.</translation>
    </message>
    <message>
        <source>%@ is protected by a password.</source>
        <comment>aux file assignment error description</comment>
        <translation>%@ ist durch ein Passwort geschützt.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu item</comment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <comment>menu item</comment>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <comment>menu item</comment>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <comment>menu item</comment>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Next Part</source>
        <comment>menu item</comment>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Previous Part</source>
        <comment>menu item</comment>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <comment>menu item</comment>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>&amp;Document</source>
        <comment>menu</comment>
        <translation>D&amp;okument</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <comment>menu</comment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <comment>menu item</comment>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>&amp;About Tavrin</source>
        <comment>menu item</comment>
        <translation>&amp;Über Tavrin</translation>
    </message>
    <message>
        <source>Reads specifications that exist only as PDFs.</source>
        <comment>about</comment>
        <translation>Liest Spezifikationen, die es nur als PDF gibt.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <comment>title of a window</comment>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Command</source>
        <comment>column of a list</comment>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <comment>column of a list</comment>
        <translation>Tasten</translation>
    </message>
</context>
</TS>
