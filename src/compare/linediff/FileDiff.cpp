#include "FileDiff.h"

#include "BinaryFiles.h"
#include "BoundaryShift.h"
#include "Discard.h"
#include "EquivalenceClasses.h"
#include "FileReader.h"
#include "LineTable.h"
#include "NormalFormat.h"
#include "SequenceCompare.h"

#include <algorithm>
#include <limits>
#include <new>
#include <stdexcept>

namespace linediff {
namespace {

// Line numbers are held in 32 bits and the core works with signed differences of them.
constexpr std::size_t kMaxLines = std::numeric_limits<std::int32_t>::max() / 2;

// Flags the changed lines of both files, as a shortest edit script where the search affords it.
// Drops the hashes, which are not needed afterwards.
void FindChanges(LineTable& a, LineTable& b, const Options& options,
                 BigVector<std::uint8_t>& changedA, BigVector<std::uint8_t>& changedB) {
    ClassIds ids = AssignClasses(a, b, options);
    a.hashes = {};
    b.hashes = {};
    changedA.assign(a.Count(), 0);
    changedB.assign(b.Count(), 0);
    {
        ReducedSequences r = DiscardUnmatched(ids, changedA, changedB);
        BigVector<std::uint8_t> keptA(r.a.size(), 0), keptB(r.b.size(), 0);
        CompareSequences(r.a, r.b, ids.count, keptA, keptB);
        for (std::size_t k = 0; k < keptA.size(); ++k)
            if (keptA[k]) changedA[r.lineA[k]] = 1;
        for (std::size_t k = 0; k < keptB.size(); ++k)
            if (keptB[k]) changedB[r.lineB[k]] = 1;
    }
    ShiftBoundaries(ids.a, changedA, changedB);
    ShiftBoundaries(ids.b, changedB, changedA);
}

Status Trouble(OutputLines& out, const std::string& message) {
    out.Clear();
    out.Add(message);
    return kTrouble;
}

std::string Quoted(const std::string& path) {
    return "\"" + path + "\"";
}

} // namespace

Status CompareTexts(std::string_view original, std::string_view revised, const Options& options,
                    OutputLines& out) {
    out.Clear();
    if (original == revised) return kIdentical;
    BigVector<std::uint8_t> changedA, changedB;
    LineTable a = BuildLineTable(original, options);
    LineTable b = BuildLineTable(revised, options);
    if (a.Count() > kMaxLines || b.Count() > kMaxLines) throw std::length_error("too many lines");
    FindChanges(a, b, options, changedA, changedB);
    auto any = [](const BigVector<std::uint8_t>& v) {
        return std::find(v.begin(), v.end(), 1) != v.end();
    };
    if (!any(changedA) && !any(changedB)) return kIdentical;
    WriteNormalFormat(a, b, changedA, changedB, out);
    return kDiffer;
}

Status CompareFiles(const std::string& originalPath, const std::string& revisedPath,
                    const Options& options, OutputLines& out) {
    out.Clear();
    try {
        FileBuffer original, revised;
        std::string error;
        if (!ReadWholeFile(originalPath, original, error) ||
            !ReadWholeFile(revisedPath, revised, error))
            return Trouble(out, error);
        if (!options.forceText && (LooksBinary(original.View()) || LooksBinary(revised.View()))) {
            if (original.View() == revised.View()) return kIdentical;
            out.Add(BinaryNotice(originalPath, revisedPath));
            return kDiffer;
        }
        return CompareTexts(original.View(), revised.View(), options, out);
    } catch (const std::bad_alloc&) {
        return Trouble(out, "Not enough memory to compare " + Quoted(originalPath) + " with " +
                                Quoted(revisedPath));
    } catch (const std::exception& e) {
        return Trouble(out, "Cannot compare " + Quoted(originalPath) + " with " +
                                Quoted(revisedPath) + ": " + e.what());
    }
}

} // namespace linediff
