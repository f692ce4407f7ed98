// Opens a web page in headless Chromium over the DevTools pipe and prints, as JSON, what the
// web-page tests check: console errors, the page shown, the texts and picture names, and
// (when asked) a screenshot, the page a click on a ring icon shows, or the page the show
// moves to by itself. No packages: Node's standard library and the system's Chromium.
//   node web_probe.js CHROMIUM URL PROFILE_DIR [--shot OUT.png] [--click N] [--wait-advance]
"use strict";
const { spawn } = require("child_process");
const fs = require("fs");

const [chromium, url, profile, ...rest] = process.argv.slice(2);
const opt = (name) => { const i = rest.indexOf(name); return i < 0 ? null : rest[i + 1]; };
const child = spawn(chromium, ["--headless", "--no-sandbox", "--disable-gpu",
  "--disable-background-networking", "--disable-component-update", "--disable-sync",
  "--no-first-run", "--user-data-dir=" + profile, "--remote-debugging-pipe",
  "--window-size=800,600", "--hide-scrollbars", "about:blank"],
  { stdio: ["ignore", "ignore", "ignore", "pipe", "pipe"] });
const toBrowser = child.stdio[3], fromBrowser = child.stdio[4];

let nextId = 0, buffer = Buffer.alloc(0), session = null;
const replies = new Map(), listeners = [], errors = [];
fromBrowser.on("data", (chunk) => {
  buffer = Buffer.concat([buffer, chunk]);
  for (let end; (end = buffer.indexOf(0)) >= 0; buffer = buffer.subarray(end + 1)) {
    const m = JSON.parse(buffer.subarray(0, end).toString());
    if (m.id !== undefined && replies.has(m.id)) { replies.get(m.id)(m); replies.delete(m.id); continue; }
    if (m.method === "Runtime.exceptionThrown") errors.push(m.params.exceptionDetails.exception
      ? m.params.exceptionDetails.exception.description : m.params.exceptionDetails.text);
    if (m.method === "Runtime.consoleAPICalled" && ["error", "warning", "assert"].includes(m.params.type))
      errors.push(m.params.args.map((a) => a.value || a.description).join(" "));
    if (m.method === "Log.entryAdded" && m.params.entry.level === "error") errors.push(m.params.entry.text);
    for (const l of listeners.splice(0)) if (!l(m)) listeners.push(l);
  }
});
function send(method, params = {}) {
  const msg = { id: ++nextId, method, params };
  if (session && !method.startsWith("Target.")) msg.sessionId = session;
  toBrowser.write(JSON.stringify(msg) + "\0");
  return new Promise((resolve, reject) => replies.set(msg.id, (r) =>
    r.error ? reject(new Error(method + ": " + r.error.message)) : resolve(r.result)));
}
const event = (name) => new Promise((resolve) => listeners.push((m) => m.method === name && (resolve(m), true)));
const sleep = (ms) => new Promise((r) => setTimeout(r, ms));
async function value(expr) {
  const r = await send("Runtime.evaluate", { expression: expr, returnByValue: true });
  if (r.exceptionDetails) throw new Error(expr + ": " + r.exceptionDetails.text);
  return r.result.value;
}
async function until(expr, limitMs) {
  for (const start = Date.now(); Date.now() - start < limitMs; await sleep(50))
    if (await value(expr)) return true;
  return false;
}

async function main() {
  const { targetInfos } = await send("Target.getTargets");
  const page = targetInfos.find((t) => t.type === "page");
  session = (await send("Target.attachToTarget", { targetId: page.targetId, flatten: true })).sessionId;
  await send("Runtime.enable"); await send("Log.enable"); await send("Page.enable");
  await send("Emulation.setDeviceMetricsOverride", { width: 800, height: 600, deviceScaleFactor: 1, mobile: false });
  const loaded = event("Page.loadEventFired");
  await send("Page.navigate", { url });
  await loaded;
  const out = {
    page: await value("document.body.dataset.page"),
    title: await value("document.title"),
    texts: await value("[...document.querySelectorAll('.line')].map((e) => e.textContent)"),
    names: await value("[...document.querySelectorAll('[role=img]')].map((e) => e.getAttribute('aria-label'))"),
    // Whatever the page would fetch: every source and style sheet must be inside it.
    // Pictures the browser could not decode (a page's or the home page's picture missing).
    undecoded: await value("[...document.images].filter((i) => !i.complete || i.naturalWidth === 0).length"),
    external: await value("[...document.querySelectorAll('[src], link[href]')].map((e) => e.getAttribute('src') || e.getAttribute('href')).filter((u) => u && !u.startsWith('data:'))"),
  };
  const shot = opt("--shot");
  if (shot) {
    await sleep(100);
    fs.writeFileSync(shot, Buffer.from((await send("Page.captureScreenshot", { format: "png" })).data, "base64"));
  }
  const click = opt("--click");
  if (click) {
    const r = await value(`(() => { const b = document.querySelectorAll('.ring')[${Number(click) - 1}].getBoundingClientRect();
      return [b.left + b.width / 2, b.top + b.height / 2]; })()`);
    for (const type of ["mousePressed", "mouseReleased"])
      await send("Input.dispatchMouseEvent", { type, x: r[0], y: r[1], button: "left", clickCount: 1 });
    await until("document.body.dataset.page !== '0'", 5000);
    out.clicked = await value("document.body.dataset.page");
  }
  if (rest.includes("--wait-advance")) {
    await until("document.body.dataset.page !== '0'", 20000);
    out.advanced = await value("document.body.dataset.page");
  }
  out.errors = errors;
  process.stdout.write(JSON.stringify(out));
}
main().then(() => child.kill(), (e) => { process.stderr.write(String(e.stack || e) + "\n"); child.kill(); process.exitCode = 1; });
