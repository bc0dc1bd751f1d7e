// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/interface/tokens/TokenMimeData.h>

#include <QCborArray>
#include <QCborValue>

namespace Tavrin
{

namespace
{

const QString &tokenType()
{
    static const QString type = QStringLiteral("application/x-tavrin-tokens");
    return type;
}

/// Absent if an object wouldn't come back as it was.
std::optional<QCborArray> encoded(const TokenContent &content)
{
    QCborArray result;
    for (qsizetype at = 0; at <= content.size();) {
        const TextRange run = content.run(at);
        if (run.length > 0)
            result += content.textOf(run);
        if (run.end() < content.size()) {
            const QVariant &object = content.tokenAt(run.end()).representedObject;
            const QCborValue value = QCborValue::fromVariant(object);
            if (value.toVariant() != object)
                return {};
            result += QCborArray{value};
        }
        at = run.end() + 1;
    }
    return result;
}

} // namespace

std::unique_ptr<QMimeData> TokenMimeData::make(const TokenContent &content, const QString &text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    if (const auto array = encoded(content))
        data->setData(tokenType(), QCborValue(*array).toCbor());
    return data;
}

std::optional<TokenContent> TokenMimeData::read(const QMimeData &data)
{
    if (!data.hasFormat(tokenType()))
        return {};
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(data.data(tokenType()), &error);
    if (error.error != QCborError::NoError || !value.isArray())
        return {};
    TokenContent result;
    QList<Token> tokens;
    for (const auto &piece : value.toArray()) {
        if (piece.isArray() && piece.toArray().size() == 1) {
            tokens += Token{piece.toArray().first().toVariant(), {}, false};
            if (!tokens.last().representedObject.isValid())
                return {};
            continue;
        }
        if (!piece.isString())
            return {};
        result.append(TokenContent(tokens));
        tokens.clear();
        result.append(TokenContent(piece.toString()));
    }
    result.append(TokenContent(tokens));
    return result;
}

} // namespace Tavrin
