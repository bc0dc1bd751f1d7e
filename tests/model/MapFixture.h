// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QUrl>

#include <support/Test.h>

#include <support/MapBuilder.h>
#include <support/TemporaryFiles.h>

#include <Tavrin/model/Specification.h>
#include <Tavrin/model/XMLError.h>
#include <Tavrin/platform/HostXMLError.h>

namespace Tavrin::Testing
{

/// A directory of maps beside the grammar that the project ships.
class MapFixture : public testing::Test
{
protected:
    /// `dtd` is a grammar that lets everything through, for what only the reader objects to.
    MapFixture()
        : dtd(write(u"any.dtd"_s,
                    "<!ELEMENT spec ANY><!ATTLIST spec id CDATA #IMPLIED revision CDATA #IMPLIED "
                    "variant CDATA #IMPLIED lang CDATA #IMPLIED version CDATA #IMPLIED "
                    "nopreviews CDATA #IMPLIED xmlns CDATA #IMPLIED kelmor CDATA #IMPLIED>"
                    "<!ELEMENT auxfiles ANY><!ELEMENT file ANY>"
                    "<!ATTLIST file type CDATA #IMPLIED verifier CDATA #IMPLIED>"
                    "<!ELEMENT name ANY><!ELEMENT shortname ANY><!ELEMENT toc ANY>"
                    "<!ELEMENT entry ANY>"
                    "<!ATTLIST entry label CDATA #IMPLIED type CDATA #IMPLIED>"
                    "<!ELEMENT index ANY><!ELEMENT keywords ANY><!ELEMENT related ANY>"
                    "<!ELEMENT item ANY><!ELEMENT internal ANY><!ELEMENT x ANY>"))
    {
    }

    /// The grammar that the project ships, beside the maps.
    QUrl shippedDTD() { return write(u"spec.dtd"_s, MapBuilder::grammar()); }

    QUrl write(const QString &name, const QByteArray &text) { return files.write(name, text); }

    /// A map with a title around the content of its root element.
    QUrl map(const QByteArray &content, const QByteArray &attributes = "id='A' revision='2'")
    {
        return write(u"map.xml"_s,
                     "<spec " + attributes + "><name>Language</name>" + content + "</spec>");
    }

    template <class Error, class Action>
    static Error thrown(Action action)
    {
        try {
            action();
        } catch (const Error &error) {
            return error;
        }
        throw std::runtime_error("nothing was thrown");
    }

    template <class Action>
    static XMLError errorOf(Action action)
    {
        return thrown<XMLError>(action);
    }

    template <class Action>
    static HostXMLError hostErrorOf(Action action)
    {
        return thrown<HostXMLError>(action);
    }

    TemporaryFiles files;
    QUrl dtd;
};

} // namespace Tavrin::Testing
