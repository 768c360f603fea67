// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CToneConversion: the course of a conversion for the handset, from the chosen files to what is to be
// written.
//
// PlanTone looks at one file after the other; the user sees what will come out of each and what it loses, may
// have recordings halved, and agrees or does not. It does no work of its own and belongs to one thread.
#pragma once

#include "app/tone_plan.h"

#include <set>

namespace app
{

class CToneConversion
{
public:
    enum class RowState { waiting, good, lossy, tooLong, refused };

    explicit CToneConversion(std::vector<std::string> sources);

    // The file to be looked at next; null when all are.
    const std::string* NextToPlan() const;
    // Names that are no longer free.
    const std::set<std::string>& Taken() const { return taken; }
    // What was found of that file.
    void Take(TonePlan plan);

    std::size_t Count() const { return sources.size(); }
    std::size_t Planned() const { return plans.size(); }
    const std::string& Source(std::size_t row) const { return sources[row]; }
    // Null while it is waiting.
    const TonePlan* Plan(std::size_t row) const { return row < plans.size() ? &plans[row] : nullptr; }
    // As it will be written; null for a file that will not be.
    const ToneOutcome* Outcome(std::size_t row) const;
    RowState State(std::size_t row) const;
    // What of its source the new file loses.
    std::vector<ToneLoss> Losses(std::size_t row) const;

    bool OffersHalving() const;
    bool Halves() const { return halves; }
    void Halve(bool on) { halves = on; }

    bool CanConvert() const { return NextToPlan() == nullptr && Convertible() > 0; }
    // How many files will be written, as far as is known.
    std::size_t Convertible() const;
    // Above everything else, with the number that goes with it.
    ToneCount Summary() const;
    // On the button that agrees; counts the files.
    platform::StringId ButtonText() const;
    std::vector<ToneOrder> Orders() const;

private:
    std::size_t CountOf(RowState state) const;

    std::vector<std::string> sources;
    std::vector<TonePlan> plans;  // of the first of them
    std::set<std::string> taken;
    bool halves = false;
};

}  // namespace app
