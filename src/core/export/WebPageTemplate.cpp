#include "export/WebPageTemplate.h"

namespace zentor {

QByteArray WebPageTemplate() {
    return QByteArrayLiteral(R"HTML(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="generator" content="Vitara Zentor">
<title>@TITLE@</title>
<style>
html, body { margin: 0; height: 100%; background: #000; overflow: hidden; }
#stage { position: absolute; left: 0; top: 0; transform-origin: 0 0; }
.screen { position: absolute; left: 0; top: 0; width: 100%; height: 100%; opacity: 0;
  visibility: hidden; transition-property: opacity, visibility; }
.screen.shown { opacity: 1; visibility: visible; }
.screen > img.page { position: absolute; left: 0; top: 0; width: 100%; height: 100%;
  user-select: none; }
.text { position: absolute; left: 0; top: 0; overflow: hidden; color: transparent; }
.text:not([style*="width"]) { overflow: visible; }
.line { position: absolute; white-space: pre; transform-origin: 0 0; }
.line::selection { background: rgba(60, 120, 255, 0.35); color: transparent; }
.object { position: absolute; }
.ring { position: absolute; padding: 0; border: 0; background: transparent; cursor: pointer; }
.ring:focus-visible { outline: 2px solid #fff; border-radius: 50%; }
.contact { position: absolute; display: block; text-align: center; color: transparent;
  font-family: Arial, "Liberation Sans", sans-serif; white-space: pre; overflow: hidden; }
</style>
</head>
<body data-page="0">
<div id="stage" role="main"></div>
<audio id="music" preload="auto"></audio>
@URIS@<script type="application/json" id="show">@DATA@</script>
<script>
"use strict";
(function () {
  const show = JSON.parse(document.getElementById("show").textContent);
  const stage = document.getElementById("stage");
  const music = document.getElementById("music");
  // Pictures and music are data URIs, each the text of an element of its own.
  function uri(id) {
    const e = document.getElementById(id);
    return e ? e.textContent : "";
  }
  stage.style.width = show.width + "px";
  stage.style.height = show.height + "px";

  function el(tag, cls, box) {
    const e = document.createElement(tag);
    if (cls) e.className = cls;
    if (box) {
      e.style.left = box.left + "px"; e.style.top = box.top + "px";
      e.style.width = box.width + "px"; e.style.height = box.height + "px";
    }
    return e;
  }

  function screen(page, label) {
    const s = el("section", "screen");
    s.setAttribute("aria-label", label);
    s.style.transitionDuration = show.fadeMs + "ms";
    const img = el("img", "page");
    img.src = uri(page.picture); img.alt = label; img.draggable = false;
    s.appendChild(img);
    for (const o of page.images || []) {
      const p = el("span", "object", o);
      p.setAttribute("role", "img"); p.setAttribute("aria-label", o.name); p.title = o.name;
      s.appendChild(p);
    }
    for (const t of page.texts || []) {
      const box = el("div", "text", t.width ? t : null);
      box.style.fontFamily = "\"" + t.font + "\", Arial, \"Liberation Sans\", sans-serif";
      box.style.fontSize = t.px + "px";
      box.style.fontWeight = t.bold ? "bold" : "normal";
      box.style.fontStyle = t.italic ? "italic" : "normal";
      const dx = t.width ? t.left : 0, dy = t.width ? t.top : 0;
      for (const l of t.lines) {
        const line = el("span", "line", { left: l.left - dx, top: l.top - dy, width: l.width, height: l.height });
        line.textContent = l.text;
        line.style.lineHeight = l.height + "px";
        box.appendChild(line);
        lines.push([line, l.width]);
      }
      s.appendChild(box);
    }
    stage.appendChild(s);
    return s;
  }

  const lines = [];
  const screens = { 0: screen(show.home, show.home.name) };
  for (const key of Object.keys(show.pages)) screens[key] = screen(show.pages[key], show.pages[key].name);

  const home = screens[0];
  // The home picture shows the contacts; their words and links lie over them.
  for (const c of show.home.contacts.lines) {
    const line = el(c.href ? "a" : "span", "contact", c);
    if (c.href) line.href = c.href;
    line.textContent = c.text;
    line.style.fontSize = show.home.contacts.px + "px";
    line.style.lineHeight = c.height + "px";
    home.appendChild(line);
  }
  show.ring.forEach(function (r, i) {
    if (i === 0) return;
    const b = el("button", "ring", r);
    b.type = "button"; b.title = r.name; b.setAttribute("aria-label", r.name);
    b.addEventListener("click", function () { go(i, i === show.order[show.order.length - 1]); });
    home.appendChild(b);
  });

  let current = -1, timer = 0, running = false;
  function go(page, run) {
    if (!screens[page]) return;
    if (current >= 0) screens[current].classList.remove("shown");
    current = page;
    screens[page].classList.add("shown");
    document.body.dataset.page = String(page);
    document.title = page === 0 ? show.title : show.title + " - " + show.pages[page].name;
    running = !!run;
    clearTimeout(timer);
    if (running) timer = setTimeout(step, show.holdMs);
  }
  function step() {
    const at = show.order.indexOf(current);
    go(show.order[(at + 1) % show.order.length], true);
  }
  function back() {
    const at = show.order.indexOf(current);
    if (at <= 0) go(0, false); else go(show.order[at - 1], running);
  }

  let musicStarted = false;
  function startMusic() {
    if (musicStarted || !show.music) return;
    musicStarted = true;
    music.src = uri(show.music); music.volume = show.volume; music.loop = show.loop;
    const played = music.play();
    if (played) played.catch(function () { musicStarted = false; });
  }
  document.addEventListener("pointerdown", startMusic, true);
  document.addEventListener("keydown", function (e) {
    startMusic();
    switch (e.key) {
      case "ArrowRight": case "ArrowDown": case "PageDown": case " ": step(); break;
      case "ArrowLeft": case "ArrowUp": case "PageUp": back(); break;
      case "Home": case "Escape": go(0, false); break;
      case "End": go(show.order[show.order.length - 1], running); break;
      default: return;
    }
    e.preventDefault();
  });

  function fit() {
    const scale = Math.min(innerWidth / show.width, innerHeight / show.height);
    const x = (innerWidth - show.width * scale) / 2, y = (innerHeight - show.height * scale) / 2;
    stage.style.transform = "translate(" + x + "px," + y + "px) scale(" + scale + ")";
  }
  // Each line stretched to the width the page draws it at: the browser's font differs a little.
  function fitLines() {
    for (const [line, width] of lines) {
      line.style.width = "auto";
      const natural = line.getBoundingClientRect().width / (stage.getBoundingClientRect().width / show.width);
      if (natural > 0) line.style.transform = "scaleX(" + width / natural + ")";
    }
  }
  addEventListener("resize", fit);
  fit();
  fitLines();
  // The home page is there at once; fades are for moving between pages.
  home.style.transitionDuration = "0ms";
  go(0, false);
  requestAnimationFrame(function () {
    requestAnimationFrame(function () { home.style.transitionDuration = show.fadeMs + "ms"; });
  });
  if (show.autoRun) timer = setTimeout(function () { go(show.order[0], true); }, show.holdMs);
})();
</script>
</body>
</html>
)HTML");
}

} // namespace zentor
