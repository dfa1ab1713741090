// SPDX-License-Identifier: MIT
// The keywords of a text of 1 MB are collected with their counts, in the order in which they
// came; and tables of keywords, of which half the names are common, are merged.
#include <marlin/keywords/keywords.h>

#include <unordered_map>

#include <bench/inputs.h>
#include <bench/jobs.h>
#include <re2/re2.h>

namespace {

constexpr std::size_t textSize = 1'000'000;

// Lines of words, with a keyword, of 500 different ones, about every hundred bytes.
std::string PlotText() {
    static constexpr std::array<const char*, 8> words = {"depth",  "of",    "the",      "basin",
                                                         "survey", "chart", "sounding", "line"};
    BENCH::Numbers numbers;
    std::string text;
    while (text.size() < textSize) {
        const std::uint64_t number = numbers.Next();
        text += words[number % words.size()];
        text += number % 96 == 0 ? "\r\n" : " ";
        if (number % 20 == 7) {
            text += "%project " + std::to_string(number / 20 % 500) + "% ";
        }
    }
    return text;
}

// What the peers collect into.
class Counts {
public:
    struct Entry {
        std::string Name;
        int Count = 0;
    };

    void Add(std::string_view name) {
        const auto [place, isNew] = m_Places.try_emplace(name, m_Entries.size());
        if (isNew) {
            m_Entries.push_back({std::string(name), 0});
        }
        ++m_Entries[place->second].Count;
    }
    [[nodiscard]] const std::vector<Entry>& Entries() const noexcept { return m_Entries; }

private:
    std::unordered_map<std::string_view, std::size_t> m_Places;  // names in the text
    std::vector<Entry> m_Entries;
};

CKeywords ByMarlin(const std::string& text) {
    CKeywords keywords;
    keywords.AddKeywordsInString(text);
    return keywords;
}

Counts ByRe2(const std::string& text) {
    static const RE2 pattern("%([^%\\r\\n\\x00]+)%");
    Counts counts;
    re2::StringPiece rest(text);
    re2::StringPiece name;
    while (RE2::FindAndConsume(&rest, pattern, &name)) {
        counts.Add({name.data(), name.size()});
    }
    return counts;
}

void CollectByLoop(const std::string& text, Counts& counts) {
    constexpr std::size_t none = std::string::npos;
    std::size_t start = none;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '%') {
            if (start != none && i > start) {
                counts.Add(std::string_view(text).substr(start, i - start));
            }
            start = start == none ? i + 1 : none;
        } else if (c == '\n' || c == '\r' || c == '\0') {
            start = none;
        }
    }
}

Counts ByLoop(const std::string& text) {
    Counts counts;
    CollectByLoop(text, counts);
    return counts;
}

bool AreSame(const CKeywords& keywords, const Counts& counts) {
    int position = 0;
    for (const Counts::Entry& entry : counts.Entries()) {
        const CKeyword* const keyword = keywords.GetKeywordConst(position++);
        if (!keyword || keyword->m_Key != entry.Name || keyword->m_RefCount != entry.Count) {
            return false;
        }
    }
    return position == keywords.GetSize() && position > 0;
}

std::string CheckedText() {
    std::string text = PlotText();
    const CKeywords keywords = ByMarlin(text);
    BENCH::Require(AreSame(keywords, ByRe2(text)), "the same keywords by RE2");
    BENCH::Require(AreSame(keywords, ByLoop(text)), "the same keywords by the loop");
    return text;
}

template <class Collect>
void EnterCollecting(const std::string& contestant, Collect collect) {
    BENCH::Contest("keywords_1mb/" + contestant, CheckedText, [collect](const std::string& text) {
        auto collected = collect(text);
        benchmark::DoNotOptimize(&collected);
    });
}

// From one text, so that making it takes no longer than a merge.
CKeywords TableOf(int first, int count) {
    std::string text;
    for (int i = first; i < first + count; ++i) {
        text += "%line " + std::to_string(i) + "%";
    }
    return ByMarlin(text);
}

// As a host with many texts, of which each has a few keywords of its own.
std::vector<std::string> ShortTexts() {
    std::vector<std::string> texts(4'000);
    for (std::size_t text = 0; text < texts.size(); ++text) {
        for (std::size_t i = 0; i < 9; ++i) {
            texts[text] += "%line " + std::to_string(9 * text + i) + "% ";
        }
    }
    return texts;
}

void EnterGrowingTable() {
    BENCH::Contest("keywords_growing_table/marlin", ShortTexts, [](const auto& texts) {
        CKeywords table;
        for (const std::string& text : texts) {
            table.AddKeywordsInString(text);
        }
        BENCH::Require(table.GetSize() == 36'000, "the keywords of all texts");
    });
    BENCH::Contest("keywords_growing_table/loop", ShortTexts, [](const auto& texts) {
        Counts counts;
        for (const std::string& text : texts) {
            CollectByLoop(text, counts);
        }
        BENCH::Require(counts.Entries().size() == 36'000, "the names of all texts");
    });
}

struct Tables {
    CKeywords Target;
    CKeywords Other;
};

void EnterMerging(int count) {
    const auto merged = [](const Tables& tables) {
        CKeywords table = tables.Target;
        table.AddKeywords(tables.Other);
        return table;
    };
    BENCH::ContestInFreshMemory(
        "growth_keywords_merge_" + std::to_string(count) + "/marlin",
        [=] {
            Tables tables{TableOf(0, count), TableOf(count / 2, count)};
            BENCH::Require(merged(tables).GetSize() == count + count / 2, "the merged names");
            return tables;
        },
        [=](const Tables& tables) {
            const CKeywords table = merged(tables);
            benchmark::DoNotOptimize(&table);
        });
}

}  // namespace

int main(int argc, char** argv) {
    EnterCollecting("marlin", ByMarlin);
    EnterCollecting("re2", ByRe2);
    EnterCollecting("loop", ByLoop);
    EnterGrowingTable();
    for (const int count : {1'000, 10'000, 200'000, 2'000'000}) {
        EnterMerging(count);
    }
    return BENCH::Run(argc, argv);
}
