#pragma once
// Scripts the view runs in its own world: they work while the page's own scripts are off, and
// the page cannot see or change them. Difference N starts at the anchor "orvane-diff-N", which
// stands inside its first mark; its marks (ins, del, changed spans) run up to the next anchor.
#include <QString>

namespace orvane::report_scripts {

inline QString CountDifferences() {
    return QStringLiteral(R"JS((function () {
  var n = 0;
  while (document.getElementById('orvane-diff-' + n)) ++n;
  return n;
})())JS");
}

// Marks difference `index` as the current one and scrolls it to the middle of the view.
inline QString ShowDifference(int index) {
    return QStringLiteral(R"JS((function (k) {
  var style = document.getElementById('orvane-current-style');
  if (!style) {
    style = document.createElement('style');
    style.id = 'orvane-current-style';
    style.textContent = '.orvane-current { outline: 3px solid #1a56db !important; ' +
                        'outline-offset: 1px !important; }';
    (document.head || document.documentElement).appendChild(style);
  }
  var old = document.querySelectorAll('.orvane-current');
  for (var i = 0; i < old.length; ++i) old[i].classList.remove('orvane-current');
  var parts = [];
  var anchor = document.getElementById('orvane-diff-' + k);
  var next = document.getElementById('orvane-diff-' + (k + 1));
  if (anchor) {
    var isMark = function (e) {
      return e.tagName == 'INS' || e.tagName == 'DEL' || e.classList.contains('orvane-changed');
    };
    var start = anchor.parentElement && isMark(anchor.parentElement) ? anchor.parentElement : anchor;
    var walker = document.createTreeWalker(document.body, NodeFilter.SHOW_ELEMENT);
    walker.currentNode = start;
    for (var e = start; e && e !== next; e = walker.nextNode())
      if (isMark(e) && !(next && e.contains(next))) parts.push(e);
  }
  for (var j = 0; j < parts.length; ++j) parts[j].classList.add('orvane-current');
  var target = parts.length ? parts[0] : anchor;
  if (!target) return false;
  target.scrollIntoView({block: 'center', inline: 'nearest'});
  return true;
})(%1))JS")
        .arg(index);
}

// Where the view is scrolled to, for tests and for keeping the place across a font change.
inline QString ScrollTop() {
    return QStringLiteral("(document.scrollingElement || document.documentElement).scrollTop");
}

} // namespace orvane::report_scripts
