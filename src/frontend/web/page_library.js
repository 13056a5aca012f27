// What the game asks of the page, handed on to the object that the page has given the module.
mergeInto(LibraryManager.library, {
  PageNow: function () { return Module['page'].now(); },
  PageKeep: function (number, name, at, size) { Module['page'].keep(number, UTF8ToString(name), HEAPU8.slice(at, at + size)); },
  PageLoadSound: function (alias, file) { Module['page'].loadSound(UTF8ToString(alias), UTF8ToString(file)); },
  PageDropSound: function (alias) { Module['page'].dropSound(UTF8ToString(alias)); },
  PageStartSound: function (alias, delay) { Module['page'].startSound(UTF8ToString(alias), delay); },
  PagePad: function (what, how) { Module['page'].pad(what, how); },
  PageCountLines: function (width) { return Module['page'].countLines(width); },
});
