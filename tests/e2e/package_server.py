#!/usr/bin/env python3
"""Serves a small package, "tavrin-sample", as the registries of pip, npm and Go do. Prints the address, then serves until
it is ended."""

import base64
import hashlib
import io
import json
import sys
import tarfile
import zipfile
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer


def zipped(files):
    buffer = io.BytesIO()
    with zipfile.ZipFile(buffer, "w") as archive:
        for name, text in files.items():
            archive.writestr(zipfile.ZipInfo(name, (2024, 1, 1, 0, 0, 0)), text)
    return buffer.getvalue()


def tarred(files):
    buffer = io.BytesIO()
    with tarfile.open(fileobj=buffer, mode="w:gz") as archive:
        for name, text in files.items():
            entry = tarfile.TarInfo(name)
            entry.size = len(text)
            entry.mode = 0o755
            archive.addfile(entry, io.BytesIO(text.encode()))
    return buffer.getvalue()


def python_pages():
    name = "tavrin_sample-1.0-py3-none-any.whl"
    wheel = zipped({
        "tavrin_sample.py": "answer = 42\n",
        "tavrin_sample-1.0.dist-info/METADATA": "Metadata-Version: 2.1\nName: tavrin-sample\nVersion: 1.0\n",
        "tavrin_sample-1.0.dist-info/WHEEL":
            "Wheel-Version: 1.0\nGenerator: test\nRoot-Is-Purelib: true\nTag: py3-none-any\n",
        "tavrin_sample-1.0.dist-info/RECORD":
            "tavrin_sample.py,,\ntavrin_sample-1.0.dist-info/METADATA,,\ntavrin_sample-1.0.dist-info/WHEEL,,\n"
            "tavrin_sample-1.0.dist-info/RECORD,,\n",
    })
    link = f'<a href="/files/{name}#sha256={hashlib.sha256(wheel).hexdigest()}">{name}</a>'
    return {f"/files/{name}": wheel, "/simple/tavrin-sample/": f"<html><body>{link}</body></html>".encode()}


def npm_pages(address):
    about = {"name": "tavrin-sample", "version": "1.0.0", "bin": {"tavrin-sample": "sample.js"}, "main": "sample.js"}
    package = tarred({
        "package/package.json": json.dumps(about),
        "package/sample.js": "#!/usr/bin/env node\nconsole.log(42);\n",
    })
    about["dist"] = {
        "tarball": f"{address}/files/tavrin-sample-1.0.0.tgz",
        "shasum": hashlib.sha1(package).hexdigest(),
        "integrity": "sha512-" + base64.b64encode(hashlib.sha512(package).digest()).decode(),
    }
    listing = {"name": "tavrin-sample", "dist-tags": {"latest": "1.0.0"}, "versions": {"1.0.0": about}}
    return {"/files/tavrin-sample-1.0.0.tgz": package, "/tavrin-sample": json.dumps(listing).encode()}


def go_pages():
    module = "module example.org/sample\n\ngo 1.19\n"
    folder = "example.org/sample@v1.0.0/"
    base = "/go/example.org/sample/@v/"
    return {
        base + "list": b"v1.0.0\n",
        base + "v1.0.0.info": b'{"Version":"v1.0.0","Time":"2024-01-01T00:00:00Z"}',
        base + "v1.0.0.mod": module.encode(),
        base + "v1.0.0.zip": zipped({folder + "go.mod": module, folder + "a.go": "package sample\n\nconst Answer = 42\n"}),
    }


class Handler(BaseHTTPRequestHandler):
    def do_GET(self):
        page = self.server.pages.get(self.path.split("?")[0])
        self.send_response(200 if page is not None else 404)
        kind = "text/html" if self.path.startswith("/simple") else "application/json"
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(page or b"")))
        self.send_header("Cache-Control", "max-age=600")
        self.end_headers()
        self.wfile.write(page or b"")

    def log_message(self, *arguments):
        pass


server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
address = f"http://127.0.0.1:{server.server_address[1]}"
server.pages = {**python_pages(), **npm_pages(address), **go_pages()}
print(address)
sys.stdout.flush()
server.serve_forever()
