#!/usr/bin/python3
"""A WebSocket server over Python's websockets package. Prints its port.

What it does for a connection stands in its path:

    /echo                     sends back what comes
    /headers                  sends the request's headers, one "name: value" a message, then "done"
    /burst/N                  sends N messages, "0" to N-1
    /binary                   sends a binary message, then the text "done"
    /close/CODE/REASON        closes

For each connection that has ended it prints "closed CODE REASON". It ends when its standard input
does.
"""
import asyncio
import os
import sys
import threading
import urllib.parse

import websockets


async def handle(socket, path):
    try:
        _, command, *arguments = path.split("/")
        if command == "headers":
            for name, value in socket.request_headers.raw_items():
                await socket.send(f"{name}: {value}")
            await socket.send("done")
        elif command == "burst":
            for number in range(int(arguments[0])):
                await socket.send(str(number))
        elif command == "binary":
            await socket.send(b"bytes")
            await socket.send("done")
        elif command == "close":
            await socket.close(int(arguments[0]), urllib.parse.unquote(arguments[1]))
        async for message in socket:
            await socket.send(message)
    except websockets.ConnectionClosed:
        pass
    await socket.wait_closed()
    print("closed", socket.close_code, socket.close_reason, flush=True)


def end_with_standard_input():
    sys.stdin.buffer.read()
    os._exit(0)


async def main():
    threading.Thread(target=end_with_standard_input, daemon=True).start()
    async with websockets.serve(handle, "127.0.0.1", 0, max_size=None, compression=None) as server:
        print(server.sockets[0].getsockname()[1], flush=True)
        await asyncio.Future()


if __name__ == "__main__":
    asyncio.run(main())
