// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// CIniReader: a small INI file's name, one section and its keys and values, as records carry it along.
//
// A copy shares the two lists with its original: what one adds the other sees. The lists go with the last
// object that holds them.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace browser
{

// A list of texts that takes room for ten at a time.
class CStringList
{
public:
    void Add(std::string text)
    {
        if (texts.size() == texts.capacity()) {
            texts.reserve(texts.size() + kBlock);
        }
        texts.push_back(std::move(text));
    }
    const std::vector<std::string>& All() const { return texts; }

private:
    static constexpr std::size_t kBlock = 10;
    std::vector<std::string> texts;
};

class CIniReader
{
public:
    CIniReader() = default;
    explicit CIniReader(std::string name) : fileName(std::move(name)) {}

    std::shared_ptr<CStringList> keys = std::make_shared<CStringList>();
    std::shared_ptr<CStringList> values = std::make_shared<CStringList>();
    std::string section;
    int count = 0;
    std::string fileName;
};

}  // namespace browser
