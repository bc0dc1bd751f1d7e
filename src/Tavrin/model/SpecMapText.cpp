// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/model/SpecMapText.h>

#include <Tavrin/model/XMLError.h>
#include <Tavrin/platform/CharacterSet.h>
#include <Tavrin/platform/DecimalForm.h>

#include <algorithm>

namespace Tavrin::SpecMapText
{

using namespace Qt::StringLiterals;

namespace
{

template <class Callback>
void forEachPiece(QStringView text, Callback callback)
{
    auto from = text.begin();
    while (true) {
        const auto to = std::find_if(from, text.end(), CharacterSet::isPunctuation);
        callback(QStringView(from, to));
        if (to == text.end())
            return;
        from = to + 1;
    }
}

std::shared_ptr<AuxiliaryFileRequirement> requirement(const HostXMLNode &node)
{
    const auto type = node.attribute("type");
    const auto verifier = node.attribute("verifier");
    if (!type || !verifier) {
        throw XMLError(XMLError::Kind::InvalidXMLSyntax,
                       u"Aux file requirement is missing one or more attributes."_s);
    }
    return std::make_shared<AuxiliaryFileRequirement>(
        *type, *verifier, node.attribute("read-info").value_or(QString()));
}

} // namespace

std::vector<int> index(const QString &text)
{
    std::vector<int> numbers;
    forEachPiece(text, [&numbers](QStringView piece) {
        if (const auto number = parseInteger(piece))
            numbers.push_back(*number);
    });
    return numbers;
}

QStringList keywords(const QString &text)
{
    QStringList words;
    forEachPiece(text, [&words](QStringView piece) {
        if (!piece.isEmpty())
            words += piece.toString();
    });
    return words;
}

QStringList relatedItems(const HostXMLNode &related)
{
    QStringList labels;
    for (const HostXMLNode &child : related.children()) {
        const auto label = child.name() == u"item"_s ? child.stringValue() : std::nullopt;
        if (label)
            labels += *label;
    }
    return labels;
}

std::optional<HostXMLNode> firstNamed(const std::vector<HostXMLNode> &nodes, const QString &name)
{
    const auto it = std::find_if(nodes.begin(), nodes.end(),
                                 [&name](const HostXMLNode &node) { return node.name() == name; });
    return it == nodes.end() ? std::nullopt : std::optional(*it);
}

AuxiliaryFileRequirements requirements(const HostXMLDocument &document)
{
    const auto root = document.rootElement();
    if (!root)
        throw XMLError(XMLError::Kind::NoRootElement);
    AuxiliaryFileRequirements result;
    const auto block = firstNamed(root->children(), u"auxfiles"_s);
    if (!block)
        return result;
    for (const HostXMLNode &child : block->children()) {
        if (child.isElement())
            result.push_back(requirement(child));
    }
    return result;
}

QString debugName(const std::optional<QString> &name)
{
    return name ? u"Optional(\""_s + *name + u"\")"_s : u"nil"_s;
}

} // namespace Tavrin::SpecMapText
