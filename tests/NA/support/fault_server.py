#!/usr/bin/python3
"""A server that does what it is told, right or wrong.

Prints its port. Each request's path is "/" and base64url of a JSON list of steps:

    ["send", text]            the text's characters as bytes; "@ACCEPT@" becomes what a WebSocket's
                              handshake has to answer to the request's key
    ["fill", count]           that many letters x
    ["drip", text, seconds]   one byte at a time, with a pause behind each
    ["endless", text]         the text again and again, until the client goes; not as fast as it
                              can, which no client would survive
    ["read", count]           so many bytes of the request's body
    ["frames", type]          the client's HTTP/2 frames, up to one of this type
    ["echo"]                  the request as it came, as the body of a good answer
    ["hang"]                  waits until the client goes
    ["close"], ["reset"]      ends the connection in order, or with RST

After its last step a connection waits for the next request. Options:

    --on-connect STEPS        run these before any request is read
    --tls CERTIFICATE KEY     PEM files

It ends when its standard input does.
"""
import argparse
import base64
import hashlib
import json
import os
import socket
import ssl
import struct
import sys
import threading
import time


class Gone(Exception):
    """The connection has ended."""


def accept(head):
    key = next(line.split(b":", 1)[1].strip() for line in head.split(b"\r\n")
               if line.lower().startswith(b"sec-websocket-key:"))
    digest = hashlib.sha1(key + b"258EAFA5-E914-47DA-95CA-C5AB0DC85B11").digest()
    return base64.b64encode(digest).decode()


class Connection:
    def __init__(self, client):
        self.client = client
        self.buffer = b""

    def receive(self):
        data = self.client.recv(65536)
        if not data:
            raise Gone
        self.buffer += data

    def take(self, count):
        while len(self.buffer) < count:
            self.receive()
        data, self.buffer = self.buffer[:count], self.buffer[count:]
        return data

    def read_head(self):
        while b"\r\n\r\n" not in self.buffer:
            self.receive()
        return self.take(self.buffer.index(b"\r\n\r\n") + 4)

    def run(self, steps, head=b""):
        for name, *arguments in steps:
            getattr(self, "do_" + name)(head, *arguments)

    def do_send(self, head, text):
        if "@ACCEPT@" in text:
            text = text.replace("@ACCEPT@", accept(head))
        self.client.sendall(text.encode("latin-1"))

    def do_fill(self, _head, count):
        self.client.sendall(b"x" * count)

    def do_drip(self, _head, text, seconds):
        for byte in text.encode("latin-1"):
            self.client.sendall(bytes([byte]))
            time.sleep(seconds)

    def do_endless(self, _head, text):
        while True:
            self.client.sendall(text.encode("latin-1"))
            time.sleep(0.001)

    def do_read(self, _head, count):
        self.take(count)

    def do_frames(self, _head, last):
        kind = None
        while kind != last:
            frame = self.take(9)
            kind = frame[3]
            self.take(int.from_bytes(frame[:3], "big"))

    def do_echo(self, head):
        length = next((int(line.split(b":", 1)[1]) for line in head.split(b"\r\n")
                       if line.lower().startswith(b"content-length:")), 0)
        body = head + self.take(length)
        self.client.sendall(b"HTTP/1.1 200 OK\r\nContent-Length: %d\r\n\r\n" % len(body) + body)

    def do_hang(self, _head):
        while True:
            self.receive()

    def do_close(self, _head):
        self.client.shutdown(socket.SHUT_WR)
        self.do_hang(_head)

    def do_reset(self, _head):
        # With a linger of zero seconds the end of the socket is a reset.
        self.client.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        raise Gone

    def serve(self, on_connect):
        if on_connect:
            self.run(on_connect)
        while True:
            head = self.read_head()
            path = head.split(b" ")[1].decode()
            self.run(json.loads(base64.urlsafe_b64decode(path[1:] + "==")), head)


def handle(client, context, on_connect):
    try:
        client.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        if context:
            client = context.wrap_socket(client, server_side=True)
        Connection(client).serve(on_connect)
    except (Gone, OSError):
        pass
    finally:
        client.close()


def end_with_standard_input():
    sys.stdin.buffer.read()
    os._exit(0)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--on-connect", type=json.loads, default=[])
    parser.add_argument("--tls", nargs=2)
    options = parser.parse_args()
    context = None
    if options.tls:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(*options.tls)
    threading.Thread(target=end_with_standard_input, daemon=True).start()
    server = socket.create_server(("127.0.0.1", 0), backlog=1024)
    print(server.getsockname()[1], flush=True)
    while True:
        client, _ = server.accept()
        threading.Thread(target=handle, args=(client, context, options.on_connect),
                         daemon=True).start()


if __name__ == "__main__":
    main()
