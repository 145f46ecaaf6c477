// SPDX-License-Identifier: MIT
#include "portal/token_store.h"

#include <QRandomGenerator>
#include <QTimer>

#include <algorithm>

namespace halvern {

namespace {

constexpr size_t kMostKept = 100;

} // namespace

TokenStore::~TokenStore() = default;

quint32 TokenStore::keep(PreparedJob job)
{
    if (kept_.size() >= kMostKept) {
        const auto oldest =
            std::ranges::min_element(kept_, {}, [](const auto& entry) { return entry.second.number; });
        kept_.erase(oldest);
    }
    quint32 token = 0;
    while (token == 0 || kept_.contains(token))
        token = QRandomGenerator::system()->generate();
    auto end = std::make_unique<QTimer>();
    end->setSingleShot(true);
    connect(end.get(), &QTimer::timeout, this, [this, token] { forget(token); });
    end->start(life_);
    kept_.emplace(token, Kept{std::move(job), std::move(end), ++last_});
    return token;
}

std::optional<PreparedJob> TokenStore::take(quint32 token, const QString& application)
{
    const auto found = kept_.find(token);
    if (found == kept_.end())
        return std::nullopt;
    PreparedJob job = std::move(found->second.job);
    forget(token);
    return job.application == application ? std::optional(std::move(job)) : std::nullopt;
}

void TokenStore::forget(quint32 token)
{
    const auto found = kept_.find(token);
    // Not from its own signal.
    found->second.end.release()->deleteLater();
    kept_.erase(found);
    if (kept_.empty())
        Q_EMIT emptied();
}

} // namespace halvern
