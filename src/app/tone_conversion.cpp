// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/tone_conversion.h"

#include "sound/tune_conversion.h"

#include <algorithm>

namespace app
{

namespace
{

using platform::StringId;

bool CanBeHalved(const TonePlan& plan)
{
    return plan.halved.has_value();
}

}  // namespace

CToneConversion::CToneConversion(std::vector<std::string> files) : sources(std::move(files)) {}

const std::string* CToneConversion::NextToPlan() const
{
    return plans.size() < sources.size() ? &sources[plans.size()] : nullptr;
}

void CToneConversion::Take(TonePlan plan)
{
    if (!plan.problem)
        taken.insert(plan.target);
    plans.push_back(std::move(plan));
}

const ToneOutcome* CToneConversion::Outcome(std::size_t row) const
{
    const TonePlan* plan = Plan(row);
    if (!plan || plan->problem)
        return nullptr;
    return halves && plan->halved ? &*plan->halved : &plan->whole;
}

CToneConversion::RowState CToneConversion::State(std::size_t row) const
{
    const ToneOutcome* outcome = Outcome(row);
    if (!outcome)
        return Plan(row) ? RowState::refused : RowState::waiting;
    if (outcome->size > sound::kLongestRingTone)
        return RowState::tooLong;
    const bool isHalved = halves && CanBeHalved(plans[row]);
    return plans[row].losses.empty() && !isHalved ? RowState::good : RowState::lossy;
}

std::vector<ToneLoss> CToneConversion::Losses(std::size_t row) const
{
    const TonePlan* plan = Plan(row);
    if (!plan || plan->problem)
        return {};
    std::vector<ToneLoss> losses = plan->losses;
    if (halves && plan->halved)
        losses.insert(losses.begin(), ToneLoss{{StringId::toneLostRate}, {}});
    return losses;
}

bool CToneConversion::OffersHalving() const
{
    return std::ranges::any_of(plans, CanBeHalved);
}

std::size_t CToneConversion::CountOf(RowState state) const
{
    std::size_t count = 0;
    for (std::size_t row = 0; row < sources.size(); ++row)
        count += State(row) == state ? 1 : 0;
    return count;
}

std::size_t CToneConversion::Convertible() const
{
    return sources.size() - CountOf(RowState::waiting) - CountOf(RowState::refused);
}

ToneCount CToneConversion::Summary() const
{
    if (NextToPlan())
        return {StringId::tonePlanning, sources.size()};
    if (Convertible() == 0)
        return {StringId::toneNone};
    if (const std::size_t tooLong = CountOf(RowState::tooLong); tooLong > 0)
        return {StringId::toneTooLong, tooLong, sound::kLongestRingTone};
    if (CountOf(RowState::lossy) > 0)
        return {StringId::toneLossy};
    return {StringId::toneGood};
}

StringId CToneConversion::ButtonText() const
{
    return CountOf(RowState::tooLong) > 0 ? StringId::toneConvertAnyway : StringId::toneConvert;
}

std::vector<ToneOrder> CToneConversion::Orders() const
{
    std::vector<ToneOrder> orders;
    for (std::size_t row = 0; row < sources.size(); ++row) {
        if (const ToneOutcome* outcome = Outcome(row))
            orders.push_back({sources[row], plans[row].target, halves && CanBeHalved(plans[row]), *outcome});
    }
    return orders;
}

}  // namespace app
