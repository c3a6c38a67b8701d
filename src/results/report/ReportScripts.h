#pragma once
// Scripts the view runs in its own world: they work while the page's own scripts are off, and
// the page cannot see or change them. Differences are the elements the report engine numbers
// with data-orvane-diff="N"; the first of each carries the anchor id "orvane-diff-N".
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
  var parts = document.querySelectorAll('[data-orvane-diff="' + k + '"]');
  for (var j = 0; j < parts.length; ++j) parts[j].classList.add('orvane-current');
  var anchor = document.getElementById('orvane-diff-' + k);
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
