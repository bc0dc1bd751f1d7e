// SPDX-License-Identifier: Apache-2.0
#include <Tavrin/english/LexiconCorrections.h>

#include <algorithm>
#include <numeric>

namespace Tavrin::English
{

namespace
{

/// Groups of words that share their tags, "tags: words; tags: words; …". A word stands in one
/// group alone.
constexpr std::string_view functionWords =
    "dt: a an the this these those every each either neither another some any no both;"
    "dt pdt: all;"
    "dt rb in wdt: that;"
    "prp: i me my mine you your yours he him his she hers it its we us our ours they them their "
    "theirs myself yourself himself herself itself ourselves yourselves themselves oneself thy;"
    "prp: something anything nothing everything someone anyone everyone somebody anybody "
    "everybody nobody none;"
    "prp uh: 'em;"
    "uh: yes yeah please hello hi hey oh wow ok okay;"
    "prp dt: her;"
    "wp: who whom whose whoever;"
    "wdt wp: what which whatever whichever;"
    "wrb: when where why how whenever wherever;"
    "ex rb: there;"
    "to: to;"
    "of: of;"
    "in: if unless because although though whereas while until till than whether lest at from "
    "with without within into onto upon among amongst amid against between beneath besides "
    "despite toward towards throughout during per via for versus vs;"
    "in rb: as so since before after about around along across above below under inside outside "
    "behind beyond through;"
    "in rp rb: in on by over off up down out near;"
    "cc: and or nor but plus yet;"
    "rb: not n't nt never also too very only just even still already always often sometimes "
    "usually "
    "perhaps maybe however therefore thus hence otherwise moreover furthermore nevertheless "
    "instead rather quite almost again once twice here now then away soon later ever indeed "
    "together respectively e.g i.e etc cf viz namely;"
    "md: can could might must shall should would ought cannot ca wo 'll;"
    "md nnp: may will;"
    "md vbd: 'd;"
    "vb: be;"
    "vbz: is does has;"
    "vbp: am are 're 'm;"
    "vbd: was were did;"
    "vbd vbn: had;"
    "vbn: been;"
    "vbg: being having;"
    "vbp vb: have do 've;"
    "pos vbz: 's;"
    "pos: ';"
    "jj: other such same own many few several;"
    "jjr rbr: more less;"
    "jjs rbs: most least;"
    "cd: one two three four five six seven eight nine ten eleven twelve twenty thirty hundred "
    "thousand million billion zero";

/// Words that manuals use otherwise than newspapers do, or that newspapers of 1989 did not know.
constexpr std::string_view technicalWords =
    "nn jj: variable variant runtime constant base default interrupt principal integral "
    "literal executable primitive ascii boolean;"
    "jj nn: parallel binary relative numeric decimal virtual serial;"
    "nns: constants interrupts binaries literals executables booleans primitives encodings "
    "mappings "
    "bindings headings usernames hostnames filenames pathnames timestamps bitmaps checksums "
    "daemons "
    "compilers debuggers linkers parsers iterators namespaces subdirectories opcodes operands "
    "mutexes semaphores structs enums tuples wildcards subsets plugins websites emails integers "
    "bytes indices nodes macros timers kernels data;"
    "nns vbz: buffers queues processes values arrays sockets headers queries parameters modules "
    "links symlinks files outputs addresses commands switches logs formats locks lists hosts "
    "patches tokens templates streams triggers clocks masks;"
    "nn: username hostname filename pathname timestamp bitmap checksum syntax semantics daemon "
    "compiler debugger linker parser scheduler iterator pointer namespace subdirectory metadata "
    "middleware firmware bandwidth latency throughput bitrate endian opcode operand mutex "
    "semaphore struct enum tuple regex wildcard superset toolchain login logout plugin workspace "
    "workflow homepage website internet integer byte node macro directory kernel index server;"
    "nn vb vbp: register buffer queue stack function object pipe socket header query parameter "
    "module link symlink file address command switch log map code display password token template "
    "frame channel trigger mask filter email;"
    "nn vbg: setting meaning encoding mapping binding spacing heading routing casting rendering "
    "warning;"
    "vb vbp nn: build enable disable compile parse override reboot;"
    "vbz nns: enables disables installs compiles invokes parses overrides;"
    "vbn jj vbd: deprecated";

template <typename Callback>
void forEachPart(std::string_view text, char separator, Callback &&callback)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0)
            callback(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

void forEachWord(std::string_view groups, bool areFunctionWords,
                 const std::function<void(const LexiconCorrection &)> &callback)
{
    forEachPart(groups, ';', [&](std::string_view group) {
        const std::size_t colon = group.find(':');
        const std::string_view tags = group.substr(0, colon);
        forEachPart(group.substr(colon + 1), ' ', [&](std::string_view word) {
            callback({word, tags, areFunctionWords});
        });
    });
}

} // namespace

/// A function word's counts are cut to the tags named. Any other word gains as many occurrences of
/// the first tag as it has in all, and a few of the others that it was never seen with.
void LexiconCorrection::apply(std::array<float, pennTagCount> &counts) const
{
    constexpr float leastCount = 6;
    constexpr float unseenShare = 0.03F;

    const auto seen = counts;
    const float count = std::max(leastCount, std::accumulate(seen.begin(), seen.end(), 0.0F));
    if (isFunctionWord)
        counts.fill(0);
    bool isFirst = true;
    forEachPart(tags, ' ', [&](std::string_view name) {
        const std::size_t tag = slot(*pennTag(name));
        const float unseen = (isFirst ? 1 : unseenShare) * count;
        if (isFunctionWord)
            counts[tag] = seen[tag] > 0 ? seen[tag] : unseen;
        else if (isFirst || seen[tag] == 0)
            counts[tag] += unseen;
        isFirst = false;
    });
}

void forEachCorrection(const std::function<void(const LexiconCorrection &)> &callback)
{
    forEachWord(functionWords, true, callback);
    forEachWord(technicalWords, false, callback);
}

} // namespace Tavrin::English
