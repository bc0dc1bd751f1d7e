// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/platform/NotificationCenter.h>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace Tavrin
{

class NotificationCenter::Token
{
public:
    QString name;
    const void *object = nullptr;
    Observer observer;
};

class NotificationCenter::Private
{
public:
    std::mutex mutex;
    std::vector<std::weak_ptr<Token>> tokens;
};

NotificationCenter::NotificationCenter() : d(std::make_unique<Private>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationCenter &NotificationCenter::shared()
{
    static NotificationCenter center;
    return center;
}

NotificationCenter::TokenPtr NotificationCenter::observe(const QString &name, const void *object,
                                                         Observer observer)
{
    auto token = std::make_shared<Token>();
    token->name = name;
    token->object = object;
    token->observer = std::move(observer);
    const std::scoped_lock lock(d->mutex);
    std::erase_if(d->tokens, [](const std::weak_ptr<Token> &old) { return old.expired(); });
    d->tokens.push_back(token);
    return token;
}

void NotificationCenter::post(const QString &name, const void *object)
{
    // Called without the lock, so that an observer may observe and post itself.
    std::vector<TokenPtr> receivers;
    {
        const std::scoped_lock lock(d->mutex);
        for (const auto &weak : d->tokens) {
            if (TokenPtr token = weak.lock())
                receivers.push_back(std::move(token));
        }
    }
    for (const TokenPtr &token : receivers) {
        if (token->name == name && (!token->object || token->object == object))
            token->observer(name, object);
    }
}

} // namespace Tavrin
