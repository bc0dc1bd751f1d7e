// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPushButton>
#include <QVBoxLayout>

#include <Tavrin/interface/citing/SpecEntryTokenFieldDelegate.h>
#include <Tavrin/interface/tokens/TokenField.h>
#include <Tavrin/interface/toolkit/Sheet.h>

#include "SharedManagerFixture.h"

namespace Tavrin::Testing
{

/// A host's form with a token field of references.
class CitingFixture : public SharedManagerFixture
{
public:
    ~CitingFixture() override
    {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

protected:
    CitingFixture()
    {
        window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(window.get());
        field = new TokenField(window.get());
        layout->addWidget(field);
        layout->addStretch();
        window->resize(640, 480);
        delegate = SpecEntryTokenFieldDelegate::make(*field);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        field->setFocus();
    }

    /// A specification that needs no file, with the entries 1, 2 and so on, of these titles.
    std::shared_ptr<Specification> addPlain(const QString &identifier, const QString &revision,
                                            const QStringList &titles)
    {
        MapBuilder map(identifier, revision);
        map.title(u"The "_s + identifier).attribute(u"revision"_s, revision);
        for (qsizetype i = 0; i < titles.size(); ++i) {
            const QString number = QString::number(i + 1);
            map.entry({.label = number, .index = number, .name = titles[i]});
        }
        manager.registerSpecification(map.write(files, u"maps/%1.xml"_s.arg(identifier)),
                                      files.url(u"spec.dtd"_s));
        auto made = specification(identifier);
        made->loadStructure();
        return made;
    }
    QStringList value() const { return field->objectValue().toStringList(); }
    Sheet *sheet() const { return qobject_cast<Sheet *>(delegate->specBrowserWindow()); }

    std::unique_ptr<QWidget> window;
    TokenField *field = nullptr;
    std::shared_ptr<SpecEntryTokenFieldDelegate> delegate;
};

} // namespace Tavrin::Testing
