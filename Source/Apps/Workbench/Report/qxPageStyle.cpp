#include "qxPageStyle.h"

const char *const qxPageStyle = R"(
:root { --paper: #f6f6f4; --card: #fff; --ink: #1d2125; --soft: #646b73; --line: #dcdedf;
  --accent: #b3372f; --shade: rgba(20, 25, 30, .08); }
@media (prefers-color-scheme: dark) {
  :root { --paper: #15181b; --card: #1e2226; --ink: #e8eaec; --soft: #9aa3ab; --line: #343a40;
    --accent: #ef7d72; --shade: rgba(0, 0, 0, .4); } }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 1240px; padding: 40px 28px 64px; background: var(--paper);
  color: var(--ink); font: 15px/1.5 system-ui, Segoe UI, Roboto, DejaVu Sans, sans-serif; }
h1 { margin: 0; font-size: 32px; line-height: 1.2; letter-spacing: -.01em; overflow-wrap: anywhere; }
h2 { margin: 48px 0 4px; padding-top: 14px; border-top: 2px solid var(--accent); font-size: 22px; }
h3 { margin: 0; font-size: 17px; overflow-wrap: anywhere; }
h4 { margin: 12px 0 2px; font-size: 12px; color: var(--soft); font-weight: 600; }
p { margin: 4px 0; color: var(--soft); white-space: pre-line; overflow-wrap: anywhere; }
nav { display: flex; flex-wrap: wrap; gap: 8px; margin-top: 20px; }
nav a { padding: 4px 14px; border: 1px solid var(--line); border-radius: 99px;
  background: var(--card); color: inherit; text-decoration: none; }
nav a:hover { border-color: var(--accent); color: var(--accent); }
.cards { display: grid; grid-template-columns: repeat(auto-fill, minmax(264px, 1fr)); gap: 22px;
  margin-top: 18px; align-items: start; }
.card { background: var(--card); border: 1px solid var(--line); border-radius: 10px;
  overflow: hidden; box-shadow: 0 2px 8px var(--shade); }
.card img, .blank { display: block; width: 100%; aspect-ratio: 3 / 2; object-fit: contain; }
.blank { display: grid; place-items: center; background: var(--line); color: var(--soft); }
.words { padding: 14px 16px 16px; }
.head { display: flex; justify-content: space-between; align-items: baseline; gap: 12px; }
kbd, .chip { padding: 1px 8px; border: 1px solid var(--line); border-radius: 6px;
  font-size: 12px; white-space: nowrap; }
kbd { border-bottom-width: 2px; font-family: inherit; color: var(--soft); }
.chip { display: inline-block; margin: 2px 4px 2px 0; white-space: normal; }
.now { border-color: var(--accent); color: var(--accent); }
.badge { margin-left: 10px; font-size: 12px; font-weight: 400; color: var(--soft); }
details { margin-top: 10px; }
summary { cursor: pointer; color: var(--accent); font-size: 13px; }
ul { margin: 0; padding: 0; list-style: none; font-size: 13px; }
li { overflow-wrap: anywhere; }
pre { margin: 0; padding: 8px 10px; border-radius: 6px; background: var(--paper); overflow-x: auto;
  font: 12px/1.45 DejaVu Sans Mono, Consolas, monospace; }
.wide { overflow-x: auto; margin-top: 18px; border: 1px solid var(--line); border-radius: 10px; }
table { width: 100%; border-collapse: collapse; background: var(--card); font-size: 14px; }
th, td { padding: 8px 14px; text-align: left; vertical-align: top;
  border-bottom: 1px solid var(--line); }
th { font-size: 12px; color: var(--soft); white-space: nowrap; }
tr:last-child td { border-bottom: 0; }
@media print { .card { break-inside: avoid; } }
)";
