// Expansion of one page of 9 KB: a hundred tags are tried, 55 of them stand in it, some more than
// once; then twelve colour names and the comment in front. The baseline is plain replacing.
#include "site/tagtext.h"
#include "site/transforms.h"

#include <benchmark/benchmark.h>
#include <utility>
#include <vector>

namespace {

constexpr int kTags = 100;
constexpr int kTagsInPage = 55;
constexpr int kColors = 12;
constexpr int kPageBytes = 9000;

using Pairs = std::vector<std::pair<QByteArray, QByteArray>>;

// Tags as pages have them: numbered fields, captions, company data and the page's own words.
Pairs MakeTags() {
    static const char* const kForms[] = {"%%1%%", "%%FIELDDEF1%%", "%%CORPINFO.DATA1%%",
                                         "%%W.WORD1%%", "%%TEXT1NAME%%"};
    Pairs tags;
    for (int i = 0; i < kTags; ++i) {
        const QByteArray number = QByteArray::number(i);
        const QByteArray form = kForms[i % int(std::size(kForms))];
        tags.emplace_back(QByteArray(form).replace("1", number), "valor del campo " + number);
    }
    return tags;
}

Pairs MakeColors() {
    Pairs colors;
    for (int i = 0; i < kColors; ++i) {
        colors.emplace_back("color-" + QByteArray::number(i) + "-x", "#336699");
    }
    return colors;
}

QByteArray MakePage(const Pairs& tags) {
    const QByteArray filling =
        "<p class=\"text-block\">Luminoso piso en el centro, reformado, a un "
        "paso del mercado y de la playa.</p>\r\n";
    QByteArray page;
    for (int i = 0; page.size() < kPageBytes; ++i) {
        page += i % 3 < 2 ? "<dt>" + tags[i * 7 % kTagsInPage].first + "</dt>\r\n" : filling;
    }
    return page;
}

struct Work {
    Pairs tags = MakeTags();
    Pairs colors = MakeColors();
    QByteArray page = MakePage(tags);
    QByteArray front = "<!-- Web Generada -->\r\n\r\n";
};

void ExpandPlainly(benchmark::State& state) {
    const Work work;
    for (auto _ : state) {
        QByteArray page = work.front + work.page;
        for (const auto& [name, value] : work.colors) {
            page.replace(name, value);
        }
        for (const auto& [tag, value] : work.tags) {
            page = ReplaceTag(page, tag, value);
        }
        benchmark::DoNotOptimize(page);
    }
    state.counters["page bytes"] = double(work.page.size());
}

void ExpandByTagText(benchmark::State& state) {
    const Work work;
    const TagText section(work.page);
    for (auto _ : state) {
        TagText page = section;
        page.Prepend(work.front);
        for (const auto& [name, value] : work.colors) {
            page.ReplacePlain(name, value);
        }
        for (const auto& [tag, value] : work.tags) {
            page.Replace(tag, value);
        }
        benchmark::DoNotOptimize(page.Text());
    }
    state.counters["page bytes"] = double(work.page.size());
}

void IndexPage(benchmark::State& state) {
    const Work work;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TagText(work.page));
    }
}

void TryAbsentTags(benchmark::State& state) {
    const Work work;
    TagText page(work.page);
    for (auto _ : state) {
        for (int i = 0; i < kTags; ++i) {
            page.Replace("%%ABSENT%%", work.front);
        }
    }
}

BENCHMARK(ExpandPlainly);
BENCHMARK(ExpandByTagText);
BENCHMARK(IndexPage);
BENCHMARK(TryAbsentTags);

} // namespace

BENCHMARK_MAIN();
