// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QVariant>

#include <Tavrin/WidgetsExport.h>

class QMenu;

namespace Tavrin
{

/// Tells a TokenField what its tokens stand for and how they show.
///
/// Every operation has a default, by which a token is the text that was typed. All are called on
/// the main thread, and may be called often: what takes long makes typing slow. A field holds its
/// delegate weakly: the host keeps it as long as the field.
class TAVRIN_WIDGETS_EXPORT TokenFieldDelegate
{
public:
    /// What to offer for a text that is being typed.
    struct Completions {
        QStringList texts;
        /// The one that is preselected; -1 for none.
        int selectedIndex = 0;
    };

    virtual ~TokenFieldDelegate();

    /// What the text from the last token to the cursor, which may be empty, can be completed to.
    ///
    /// The default offers nothing. A text that is chosen goes to representedObject().
    virtual Completions completions(const QString &substring);

    /// What a confirmed text stands for; a value that is not valid means the text itself.
    virtual QVariant representedObject(const QString &editingString);
    /// The same for as many at once as a paste brings, in the same order and number.
    ///
    /// The default asks representedObject() for each. Override it where going through all of them
    /// at once is quicker.
    virtual QVariantList representedObjects(const QStringList &editingStrings);

    /// What the token shows; a null string leaves that to the field, which shows the object as
    /// text.
    ///
    /// Asked when a token comes into the field, and again by TokenField::reloadTokens.
    virtual QString displayString(const QVariant &representedObject);
    /// What stands in its place when it is edited, and what is copied of it as text. A null string
    /// as above.
    virtual QString editingString(const QVariant &representedObject);

    /// Whether the token shows a sign that opens menu(). False by default.
    virtual bool hasMenu(const QVariant &representedObject);
    /// Shown at once; it stays the delegate's. Null for none.
    virtual QMenu *menu(const QVariant &representedObject);
};

} // namespace Tavrin
