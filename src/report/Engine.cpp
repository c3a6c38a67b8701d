#include "report/Engine.h"

#include "intake/html/Decoder.h"
#include "intake/html/Tags.h"
#include "intake/html/TreeBuilder.h"
#include "intake/html/Utf8.h"
#include "report/Atoms.h"
#include "report/Inputs.h"
#include "report/Listing.h"
#include "report/Visual.h"

#include <exception>
#include <vector>

namespace orvane::report {

namespace {

using html::Node;
using html::Tag;

void CollectFrames(const Node* n, std::vector<const Node*>& frames) {
    for (const Node* c = n->firstChild; c; c = c->next) {
        if (c->Is(Tag::Frame))
            frames.push_back(c);
        else if (c->Is(Tag::Frameset))
            CollectFrames(c, frames);
    }
}

std::vector<const Node*> Frames(const html::Document& doc) {
    std::vector<const Node*> frames;
    const Node* body = FindBody(doc);
    if (body->Is(Tag::Frameset)) CollectFrames(body, frames);
    return frames;
}

struct Side {
    LoadedInput input;
    html::Document doc;
};

std::string FrameSource(const Node* frame, const PageBase& base) {
    const auto* src = frame->Attribute(U"src");
    if (!src) return {};
    const std::string resolved = ResolveAddress(base, html::EncodeUtf8(*src));
    if (resolved.starts_with("file://")) return resolved.substr(7);
    return resolved;
}

// Framed pages are compared frame by frame, each frame's pair one section of the report.
int WriteFrames(const Side& a, const Side& b, const ReportOptions& options, PageWriter& writer,
                std::string& head, const InputLoader& load) {
    const auto framesA = Frames(a.doc), framesB = Frames(b.doc);
    if (framesA.size() != framesB.size()) return kFrameCountDiffers;
    for (std::size_t k = 0; k < framesA.size(); ++k) {
        Side fa{load(FrameSource(framesA[k], a.input.base)), {}};
        if (!fa.input.ok) return kOriginalUnreadable;
        Side fb{load(FrameSource(framesB[k], b.input.base)), {}};
        if (!fb.input.ok) return kRevisedUnreadable;
        fa.doc = html::ParseDocument(html::DecodeDocument(fa.input.bytes).text);
        fb.doc = html::ParseDocument(html::DecodeDocument(fb.input.bytes).text);
        writer.Out() += "<h2 class=\"orvane-chrome orvane-frame\">Frame " + std::to_string(k + 1) +
                        "</h2>\n<div class=\"orvane-frame-body\">";
        head += WriteVisual({&fa.doc, fa.input.base}, {&fb.doc, fb.input.base}, options, writer);
        writer.Out() += "</div>\n";
    }
    return kDifferent;
}

ReportResult Compare(Side& a, Side& b, const ReportOptions& options, const std::string& labelA,
                     const std::string& labelB, const InputLoader& load) {
    ReportResult result;
    PageWriter writer;
    std::string head;
    if (options.kind == CompareKind::Visual) {
        if (!LooksLikeHtml(a.input.bytes) || !LooksLikeHtml(b.input.bytes)) {
            result.code = kNotHtml;
            return result;
        }
        a.doc = html::ParseDocument(html::DecodeDocument(a.input.bytes).text);
        b.doc = html::ParseDocument(html::DecodeDocument(b.input.bytes).text);
        if (FindBody(a.doc)->Is(Tag::Frameset) || FindBody(b.doc)->Is(Tag::Frameset)) {
            const int code = WriteFrames(a, b, options, writer, head, load);
            if (code != kDifferent) {
                result.code = code;
                return result;
            }
        } else {
            head = WriteVisual({&a.doc, a.input.base}, {&b.doc, b.input.base}, options, writer);
        }
    } else {
        WriteListing(html::DecodeDocument(a.input.bytes).text,
                     html::DecodeDocument(b.input.bytes).text, options, writer);
    }
    result.differenceCount = writer.Count();
    result.code = writer.Count() > 0 ? kDifferent : kIdentical;
    result.html = writer.Finish(options, head, labelA, labelB);
    return result;
}

} // namespace

ReportResult CompareInputs(LoadedInput original, LoadedInput revised, const ReportOptions& options,
                           const std::string& originalLabel, const std::string& revisedLabel,
                           const InputLoader& load) {
    try {
        Side a{std::move(original), {}};
        Side b{std::move(revised), {}};
        return Compare(a, b, options, originalLabel, revisedLabel, load);
    } catch (const std::exception&) {
        ReportResult r;
        r.code = kUnknownProblem;
        return r;
    }
}

ReportResult MakeReportFromContent(const std::string& originalBytes,
                                   const std::string& revisedBytes, const ReportOptions& options,
                                   const std::string& originalLabel,
                                   const std::string& revisedLabel) {
    return CompareInputs({true, originalBytes, {}, "a"}, {true, revisedBytes, {}, "b"}, options,
                         originalLabel, revisedLabel, LoadLocalFile);
}

} // namespace orvane::report
